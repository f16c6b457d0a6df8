// The promises about guard, model and machine. Those about what is shown are in
// SafetyOfSurfaces.cpp.
#include "desk/explore/Safety.hpp"

#include <algorithm>
#include <array>

#include "desk/script/Inspectables.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::explore {

namespace {

constexpr std::array<std::string_view, 5> storedKeys{"selectedDisplayID", "isOrvaneEnabled",
                                                     "hidesDockOnAllDisplays",
                                                     "temporaryUnlockModifier", "appLanguage"};
/// The lines by which a user operates the application.
constexpr std::array<std::string_view, 9> handsOn{"press", "pick",  "key",  "click", "do",
                                                  "drop",  "hover", "drag", "menu"};

std::string_view firstWord(std::string_view line) {
  return line.substr(0, line.find(' '));
}

bool isByHand(std::string_view line) {
  return std::ranges::find(handsOn, firstWord(line)) != handsOn.end();
}

std::string yesNo(bool value) {
  return value ? "true" : "false";
}

}  // namespace

Safety::Safety(Machine& machine, const ApplicationHost& application)
    : machine_(machine), application_(application), filter_(machine, application) {
  machine_.eventTaps.setWitness(&filter_);
  filter_.forgetSituations();
}

Safety::~Safety() {
  machine_.eventTaps.setWitness(nullptr);
}

bool Safety::isOverdue(const std::string& matter, bool isWrong, std::int64_t now,
                       std::int64_t limit) {
  if (!isWrong) {
    wrongSince_.erase(matter);
    return false;
  }
  return now - wrongSince_.emplace(matter, now).first->second > limit;
}

void Safety::listenToScreens() {
  machine_.observers.add(appkit::NotificationName::applicationDidChangeScreenParameters, [this] {
    filter_.forgetSituations();
    hasListed_ = true;
  });
}

void Safety::begin() {
  filter_.beginStep();
  wasStale_ = isStale();
  revealsBefore_ = machine_.dock.reveals();
}

void Safety::follow(const std::string& line, const Moment& before, const Moment& after) {
  if (firstWord(line) == "defaults") {
    for (const auto& [key, value] : machine_.userDefaults.values()) {
      if (std::ranges::find(storedKeys, key) == storedKeys.end()) {
        foreignKeys_.insert(key);
      }
    }
  }
  for (const Display& display : machine_.displays.all()) {
    names_.insert(display.name);
  }
  if (machine_.loginItem.error) {
    names_.insert(*machine_.loginItem.error);
  }
  const bool isNew = after.isLaunched && !before.isLaunched;
  if (!after.isLaunched) {
    wrongSince_.clear();
  }
  const Tongue tongue = tongueFor(after.stored.language, machine_.locale);
  if (isNew || before.stored.language != after.stored.language || !after.isLaunched) {
    tongues_.clear();
  }
  tongues_.insert(tongue);
  if (!after.shows("alert") && !after.shows("guide")) {
    tonguesOfPanels_.clear();
  }
  tonguesOfPanels_.insert(tongues_.begin(), tongues_.end());
  if (isNew) {
    filter_.forgetSituations();
    listenToScreens();
    hasAsked_ = false;
    hasListed_ = false;
  } else {
    filter_.noteSituation();
  }
  hasAsked_ = hasAsked_ || after.shows("alert") || after.isGuideOpen;
}

std::optional<Violation> Safety::check(const std::string& line, const Moment& before,
                                       const Moment& after) {
  follow(line, before, after);
  if (filter_.step().violation) {
    return filter_.step().violation;
  }
  std::optional<Violation> found = checkMachine(after);
  const auto then = [&found](auto&& next) {
    if (!found) {
      found = next();
    }
  };
  then([&] { return checkObjects(after); });
  then([&] { return checkKeys(); });
  then([&] { return checkModes(after); });
  then([&] { return checkWindows(after); });
  if (!after.isLaunched) {
    return found;
  }
  then([&] { return checkDock(before, after); });
  then([&] { return checkPermission(after); });
  then([&] { return checkGuard(before, after); });
  then([&] { return checkModel(after); });
  then([&] { return checkStatus(after); });
  then([&] { return checkWish(line, before, after); });
  then([&] { return checkIcon(after); });
  then([&] { return checkMenu(after); });
  then([&] { return checkMainPanel(after); });
  then([&] { return checkSettings(after); });
  then([&] { return checkTexts(after); });
  return found;
}

Safety::Check Safety::checkMachine(const Moment& after) const {
  if (machine_.faults.count() > 0) {
    return Violation{"faults", machine_.faults.texts().front(), "faults.count 0"};
  }
  if (machine_.counters.droppedEvents > 0) {
    return Violation{"filter", "an event was dropped", "counters.droppedEvents 0"};
  }
  if (after.tapCount > 1 || (after.tapCount > 0 && !after.isLaunched)) {
    return Violation{"taps", "there are " + std::to_string(after.tapCount) + " taps alive",
                     "guard.taps " + std::string(after.isLaunched ? "1" : "0")};
  }
  return std::nullopt;
}

Safety::Check Safety::checkObjects(const Moment& after) const {
  const ObjectRegistry& objects = machine_.objects;
  const auto running = static_cast<std::size_t>(after.isLaunched && after.isGuardRunning);
  const auto count = [&objects](ObjectKind kind) { return objects.liveCount(kind); };
  if (count(ObjectKind::machPort) != running || count(ObjectKind::runLoopSource) != running) {
    return Violation{"objects", std::to_string(count(ObjectKind::machPort)) + " ports and " +
                                    std::to_string(count(ObjectKind::runLoopSource)) +
                                    " sources while the guard " +
                                    (running == 1 ? "runs" : "does not run")};
  }
  if (objects.liveCount() != 2 * running) {
    return Violation{"objects", "left over: " + objects.liveDescriptions().back()};
  }
  return std::nullopt;
}

Safety::Check Safety::checkKeys() const {
  for (const auto& [key, value] : machine_.userDefaults.values()) {
    if (std::ranges::find(storedKeys, key) == storedKeys.end() && !foreignKeys_.contains(key)) {
      return Violation{"keys", "\"" + key + "\" was stored"};
    }
  }
  return std::nullopt;
}

Safety::Check Safety::checkDock(const Moment& before, const Moment& after) const {
  const bool isGuarded = before.isGuardRunning && before.isTapEnabled && after.isGuardRunning &&
                         after.isTapEnabled && !filter_.step().hasFreeMovement && !wasStale_ &&
                         !isStale() && before.stored == after.stored;
  if (!isGuarded) {
    return std::nullopt;
  }
  const Situation& situation = filter_.situations().front();
  for (std::size_t index = 0; index < situation.screens.size(); ++index) {
    const std::uint32_t number = situation.screens[index].number;
    const auto known = revealsBefore_.find(number);
    const std::int64_t count = known == revealsBefore_.end() ? 0 : known->second;
    if (situation.isForbidden(index, after.stored.wish()) &&
        machine_.dock.revealCount(number) > count) {
      return Violation{"dock", "the Dock came up on display " + std::to_string(number),
                       "dock.reveals." + std::to_string(number) + " " + std::to_string(count)};
    }
  }
  return std::nullopt;
}

Safety::Check Safety::checkPermission(const Moment& after) {
  if (isOverdue("tap", !after.isTrusted && after.isGuardRunning, after.now)) {
    return Violation{"permission", "the guard has a tap a second after its permission went",
                     "guard.running false"};
  }
  const bool counts = after.isTrusted && !after.isDoubted;
  if (isOverdue("permission", after.hasPermission != counts, after.now)) {
    return Violation{"permission",
                     "the model says " + yesNo(after.hasPermission) + " of the permission",
                     "model.hasAccessibilityPermission " + yesNo(counts)};
  }
  return std::nullopt;
}

Safety::Check Safety::checkGuard(const Moment& before, const Moment& after) {
  if (!after.isGuardRunning) {
    if (after.isUnlocked) {
      return Violation{"guard", "it is unlocked and does not run",
                       "guard.isTemporarilyUnlocked false"};
    }
    return std::nullopt;
  }
  if (!after.stored.wants) {
    return Violation{"guard", "it runs and nobody wants it", "guard.running false"};
  }
  // A start without the permission changes nothing; the next look at the permission, within a
  // second, ends the guard or restarts it with the settings of now.
  if (!after.isTrusted || !before.isTrusted) {
    untrustedAt_ = after.now;
  }
  if (untrustedAt_ && after.now - *untrustedAt_ <= Clock::nanosecondsPerSecond) {
    return std::nullopt;
  }
  const GuardSnapshot& guard = after.snapshot.guard;
  const Wish wish = after.stored.wish();
  if (guard.blocksAllDisplays != wish.prevents) {
    return Violation{"guard", "it runs in the other mode",
                     "guard.blocksAllDisplays " + yesNo(wish.prevents)};
  }
  if (static_cast<std::uint64_t>(guard.overrideModifier.flagMask()) != after.stored.unlockMask()) {
    return Violation{"guard", "it unlocks by another key",
                     "guard.overrideModifier \"" + after.stored.modifier + "\""};
  }
  std::optional<std::string> complaint;
  for (const Situation& situation : filter_.situations()) {
    complaint = situation.complaint(guard.zones, wish);
    if (!complaint) {
      break;
    }
  }
  return complaint ? Check(Violation{"zones", *complaint}) : std::nullopt;
}

Safety::Check Safety::checkModel(const Moment& after) const {
  const OrvaneSnapshot& model = after.snapshot;
  const Stored& stored = after.stored;
  if (model.selectedDisplayID != stored.selected) {
    return Violation{
        "stored", "the target is not the stored one",
        "model.selectedDisplayID " + (stored.selected ? "\"" + *stored.selected + "\"" : "null")};
  }
  if (model.hidesDockOnAllDisplays != stored.prevents) {
    return Violation{"stored", "the mode is not the stored one",
                     "model.hidesDockOnAllDisplays " + yesNo(stored.prevents)};
  }
  if (model.temporaryUnlockModifier.rawValue() != stored.modifier) {
    return Violation{"stored", "the key is not the stored one",
                     "model.temporaryUnlockModifier \"" + stored.modifier + "\""};
  }
  if (model.appLanguage.rawValue() != stored.language) {
    return Violation{"stored", "the language is not the stored one",
                     "model.appLanguage \"" + stored.language + "\""};
  }
  if (model.lastRestoreSucceeded) {
    return Violation{"model", "something assigned what nothing assigns",
                     "model.lastRestoreSucceeded null"};
  }
  if (!after.isQueueHeld && model.isTemporarilyUnlocked != after.isUnlocked) {
    return Violation{"model", "it did not hear of the unlock",
                     "model.isTemporarilyUnlocked " + yesNo(after.isUnlocked)};
  }
  return std::nullopt;
}

Safety::Check Safety::checkStatus(const Moment& after) const {
  const bool isSettled = !after.isQueueHeld && !isStale() && !after.isChangingTogether;
  if (!isSettled) {
    return std::nullopt;
  }
  const OrvaneModel& model = application_.model();
  const Situation& situation = filter_.situations().front();
  const std::vector<DisplaySnapshot>& listed = model.displays().value();
  const bool isSame = std::ranges::equal(
      listed, situation.screens,
      [](const DisplaySnapshot& display, const Situation::Screen& screen) {
        return display.id == screen.names.front() && display.cgFrame.origin.x == screen.x &&
               display.cgFrame.origin.y == screen.y;
      });
  if (!isSame && (hasListed_ || !listed.empty())) {
    return Violation{"displays", "the model lists other displays than there are"};
  }
  const Wish wish = after.stored.wish();
  OrvaneStatus expected = after.isGuardRunning ? OrvaneStatus::locked : OrvaneStatus::unlocked;
  if (!after.hasPermission) {
    expected = OrvaneStatus::permissionRequired;
  } else if (!wish.prevents && after.stored.selected &&
             (listed.empty() || situation.named(wish.target) == nullptr)) {
    expected = OrvaneStatus::targetMissing;
  } else if (!situation.edge) {
    expected = OrvaneStatus::needsCheck;
  } else if (after.isUnlocked) {
    expected = OrvaneStatus::temporarilyUnlocked;
  }
  if (after.status != expected) {
    return Violation{"status", std::string("it is ") + script::nameOf(after.status),
                     std::string("model.status \"") + script::nameOf(expected) + "\""};
  }
  return std::nullopt;
}

Safety::Check Safety::checkWish(const std::string& line, const Moment& before,
                                const Moment& after) const {
  const Stored& was = before.stored;
  const Stored& is = after.stored;
  if (firstWord(line) == "defaults" || isByHand(line) || !before.isLaunched) {
    return std::nullopt;
  }
  if (was.language != is.language || was.modifier != is.modifier) {
    return Violation{"wish", "a choice was stored that nobody made"};
  }
  const bool isOpen = hasAsked_;
  if ((was.wants && !is.wants && !isOpen) || (!was.wants && is.wants && !isOpen) ||
      (was.prevents != is.prevents && !isOpen)) {
    return Violation{"wish", "nobody changed what they want of the guard, and it was stored",
                     "defaults.isOrvaneEnabled " + yesNo(was.wants)};
  }
  if (was.selected && was.selected != is.selected) {
    // An alias may become the name by which its display is stored.
    const bool isAlias =
        is.selected && std::ranges::any_of(filter_.situations(), [&](const Situation& situation) {
          const auto* const screen = situation.named(*was.selected);
          return screen != nullptr && screen->isNamed(*is.selected);
        });
    if (!isAlias) {
      return Violation{"wish", "another target was stored than the one that was chosen"};
    }
  }
  return std::nullopt;
}

}  // namespace orvane::desk::explore
