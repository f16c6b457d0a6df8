// The invariants of the guard, the model and the machine; those of surfaces are in
// InvariantCheckerSurfaces.cpp.
#include "desk/explore/InvariantChecker.hpp"

#include <algorithm>
#include <array>

#include "desk/script/Inspectables.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::explore {

namespace {

constexpr std::array<std::string_view, 5> storedKeys{"selectedDisplayID", "isOrvaneEnabled",
                                                     "hidesDockOnAllDisplays",
                                                     "temporaryUnlockModifier", "appLanguage"};

/// Whether the name is the screen's title, or in any language the one that it gets without a title.
bool hasTitle(const std::string& name, const DisplayConfiguration::Screen& screen) {
  if (screen.isBuiltIn) {
    return name == "Display" || name == "内建显示器" || name == "內建顯示器";
  }
  if (!screen.title.empty()) {
    return name == screen.title;
  }
  const std::string number = std::to_string(screen.number);
  return name == "Display " + number || name == "显示器 " + number || name == "顯示器 " + number ||
         (!screen.hasNumber &&
          (name == "Unknown Display" || name == "未知显示器" || name == "未知顯示器"));
}

bool isListedAs(const DisplaySnapshot& display, const DisplayConfiguration::Screen& screen) {
  return display.id == screen.names.front() && display.cgFrame.origin.x == screen.x &&
         display.cgFrame.origin.y == screen.y && display.isBuiltIn == screen.isBuiltIn &&
         display.isMain == screen.isMain && hasTitle(display.name, screen);
}

std::string yesNo(bool value) {
  return value ? "true" : "false";
}

}  // namespace

InvariantChecker::InvariantChecker(Machine& machine) : machine_(machine), filter_(machine) {
  machine_.eventTaps.setWitness(&filter_);
  filter_.resetConfigurations();
}

InvariantChecker::~InvariantChecker() {
  machine_.eventTaps.setWitness(nullptr);
}

bool InvariantChecker::isOverdue(const std::string& name, bool isWrong, std::int64_t now,
                                 std::int64_t limit) {
  if (!isWrong) {
    wrongSince_.erase(name);
    return false;
  }
  return now - wrongSince_.emplace(name, now).first->second > limit;
}

void InvariantChecker::observeScreens() {
  machine_.observers.add(appkit::NotificationName::applicationDidChangeScreenParameters, [this] {
    filter_.resetConfigurations();
    hasListed_ = true;
    wasNotified_ = true;
  });
}

void InvariantChecker::beginStep(const std::string& line) {
  operation_ = operations_.operationOf(line);
  wasNotified_ = false;
  filter_.beginStep();
  abandonedPortsBefore_ = machine_.counters.abandonedPorts;
  wasStale_ = isStale();
  revealsBefore_ = machine_.dock.reveals();
}

void InvariantChecker::noteLanguages(const Observation& before, const Observation& after) {
  const Language language = languageFor(after.stored.language, machine_.locale);
  const bool isChosen = before.stored.language != after.stored.language;
  if (isChosen || !before.isLaunched || !after.isLaunched) {
    languages_.clear();
  }
  languages_.insert(language);
  std::erase_if(surfaceLanguages_, [&](const auto& entry) {
    const std::string& surface = entry.first;
    // A panel that is minimised or hidden stays open.
    const bool isOpen = after.trees.contains(surface) || (surface == "main" && after.isMainOpen) ||
                        (surface == "settings" && after.isSettingsOpen) ||
                        (surface == "guide" && after.isGuideOpen);
    // The alert and the guide need not follow a choice while they are open.
    const bool follows = isChosen && surface != "alert" && surface != "guide";
    return !isOpen || follows;
  });
  for (const auto& [surface, tree] : after.trees) {
    surfaceLanguages_[surface];
  }
  for (auto& [surface, languages] : surfaceLanguages_) {
    languages.insert(language);
  }
  if (after.isMenuOpen && !after.isStatusMenuOpen) {
    // A pop-up button's menu is in the language of its panel.
    surfaceLanguages_["menu"] = languages_;
  }
}

Step InvariantChecker::endStep(const std::string& line, bool hasRun, const Observation& before,
                               const Observation& after) {
  if (firstWord(line) == "defaults") {
    for (const auto& [key, value] : machine_.userDefaults.values()) {
      if (std::ranges::find(storedKeys, key) == storedKeys.end()) {
        scriptKeys_.insert(key);
      }
    }
  }
  for (const Display& display : machine_.displays.all()) {
    names_.insert(display.name);
  }
  if (machine_.loginItem.error) {
    names_.insert(*machine_.loginItem.error);
  }
  const bool isLaunch = after.isLaunched && !before.isLaunched;
  if (!after.isLaunched) {
    wrongSince_.clear();
  }
  noteLanguages(before, after);
  if (isLaunch) {
    filter_.resetConfigurations();
    observeScreens();
    hasListed_ = false;
  } else {
    filter_.addConfiguration();
  }
  // A click that makes the Dock slide away has two effects. One that updates a panel to another
  // language may move the control away from the pointer.
  const bool mayMoveControls = languages_.size() > 1 && firstWord(line) == "click";
  if (!Operations::hasReachedTarget(line) || wasNotified_ || mayMoveControls) {
    operation_ = line;
  }
  operations_.note(after);
  return {.line = line,
          .operation = operation_,
          .hasRun = hasRun,
          .before = before,
          .after = after,
          .filter = filter_.step(),
          .isStale = isStale(),
          .wasNotified = wasNotified_,
          .machine = machine_};
}

std::optional<Violation> InvariantChecker::check(const Step& step) {
  const Observation& before = step.before;
  const Observation& after = step.after;
  if (filter_.step().violation) {
    return filter_.step().violation;
  }
  if (Check found =
          firstOf([&] { return checkMachine(after); }, [&] { return checkObjects(after); },
                  [&] { return checkKeys(); }, [&] { return checkModes(before, after); },
                  [&] { return checkWindows(after); })) {
    return found;
  }
  const DisplayConfiguration configuration = DisplayConfiguration::of(machine_);
  if (!after.isLaunched) {
    return step.isEnd() ? effects_.checkStoredChoices(step, configuration) : std::nullopt;
  }
  return firstOf([&] { return checkDock(before, after); }, [&] { return checkPermission(after); },
                 [&] { return checkGuard(before, after); }, [&] { return disabling_.check(step); },
                 [&] { return checkModel(after); }, [&] { return checkMessages(step); },
                 [&] { return checkTimers(after); }, [&] { return checkStatus(after); },
                 [&] { return checkIcon(after); }, [&] { return checkAnnouncement(before, after); },
                 [&] { return checkMenu(after); }, [&] { return checkMainPanel(after); },
                 [&] { return checkPlaces(after); }, [&] { return checkSettings(after); },
                 [&] { return checkTexts(after); }, [&] { return windows_.check(step); },
                 [&] { return effects_.check(step, configuration); });
}

InvariantChecker::Check InvariantChecker::checkMachine(const Observation& after) const {
  if (machine_.faults.count() > 0) {
    return Violation{"faults", machine_.faults.texts().front(), "faults.count 0"};
  }
  if (machine_.counters.droppedEvents > 0) {
    return Violation{"filter", "an event was dropped", "counters.droppedEvents 0"};
  }
  if (after.isLaunched && machine_.counters.abandonedPorts > abandonedPortsBefore_) {
    return Violation{"objects", "a port was released without being invalidated"};
  }
  if (after.tapCount > 1 || (after.tapCount > 0 && !after.isLaunched)) {
    return Violation{"taps", "there are " + std::to_string(after.tapCount) + " taps alive",
                     "guard.taps " + std::string(after.isLaunched ? "1" : "0")};
  }
  constexpr CGEventMask movements = CGEventMask{1} << kCGEventMouseMoved;
  if (after.tapCount > 0 && machine_.eventTaps.eventsOfInterest() != movements) {
    return Violation{"taps", "the tap does not receive movements only"};
  }
  return std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkObjects(const Observation& after) const {
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

InvariantChecker::Check InvariantChecker::checkKeys() const {
  for (const auto& [key, value] : machine_.userDefaults.values()) {
    if (std::ranges::find(storedKeys, key) == storedKeys.end() && !scriptKeys_.contains(key)) {
      return Violation{"keys", "\"" + key + "\" was stored"};
    }
  }
  return std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkTimers(const Observation& after) const {
  // The status icon and the tap watch have one each, so has a guide that polls. Open settings may
  // have one for the login item.
  const std::size_t expected = 2U + static_cast<std::size_t>(after.isGuidePolling) +
                               static_cast<std::size_t>(after.isSettingsOpen);
  const std::size_t count = machine_.runLoop.coalescedTimerCount();
  if (count > expected) {
    return Violation{"timers", std::to_string(count) + " timers are running, not at most " +
                                   std::to_string(expected)};
  }
  return std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkMessages(const Step& step) {
  const Observation& before = step.before;
  const Observation& after = step.after;
  if (before.isQueueHeld || after.isQueueHeld) {
    messagesHeldUntil_ = after.now;
  }
  // The guard's clock counts seconds as floating-point numbers.
  constexpr std::int64_t rounding = 1000;
  const auto& reports = after.reportTimes;
  if (reports && after.messageCount > before.messageCount && (*reports)[0] > messagesHeldUntil_ &&
      (*reports)[1] - (*reports)[0] < Clock::nanosecondsPerSecond - rounding) {
    return Violation{"messages", "blocks were reported twice within a second"};
  }
  if (const std::int64_t delay = machine_.notifications.delayNanoseconds; delay > 0) {
    notificationsUntil_ = std::max(notificationsUntil_, after.now + delay);
  }
  const bool isQuiet =
      before.now > notificationsUntil_ && step.line.starts_with("advance") && step.isWithinRun() &&
      before.stored == after.stored && before.isTrusted == after.isTrusted &&
      before.isGuardRunning == after.isGuardRunning && before.isTapEnabled == after.isTapEnabled &&
      !wasStale_ && !isStale() && !before.isQueueHeld && !after.isQueueHeld &&
      !before.isGuideOpen && !step.wasNotified &&
      before.snapshot.isPermissionStale == after.snapshot.isPermissionStale &&
      after.isTapEnabled == after.isGuardRunning;
  if (!isQuiet) {
    quietSince_ = after.now;
    return std::nullopt;
  }
  // The application looks at the permission, the tap and the Dock once a second.
  const bool isSettled = before.now - quietSince_ > 2 * Clock::nanosecondsPerSecond;
  return isSettled && after.messageCount != before.messageCount
             ? Check(Violation{"messages", "\"" + after.lastMessage + "\" without a reason"})
             : std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkDock(const Observation& before,
                                                    const Observation& after) const {
  const bool isGuarded = before.isGuardRunning && before.isTapEnabled && after.isGuardRunning &&
                         after.isTapEnabled && !filter_.step().hasFreeMovement && !wasStale_ &&
                         !isStale() && before.stored == after.stored;
  if (!isGuarded) {
    return std::nullopt;
  }
  const DisplayConfiguration& configuration = filter_.configurations().front();
  for (std::size_t index = 0; index < configuration.screens.size(); ++index) {
    const std::uint32_t number = configuration.screens[index].number;
    const auto known = revealsBefore_.find(number);
    const std::int64_t count = known == revealsBefore_.end() ? 0 : known->second;
    if (configuration.isForbidden(index, after.stored.goal()) &&
        machine_.dock.revealCount(number) > count) {
      return Violation{"dock", "the Dock came up on display " + std::to_string(number),
                       "dock.reveals." + std::to_string(number) + " " + std::to_string(count)};
    }
  }
  return std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkPermission(const Observation& after) {
  if (isOverdue("tap", !after.isTrusted && after.isGuardRunning, after.now)) {
    return Violation{"permission",
                     "the guard still has its tap a second after the permission was revoked",
                     "guard.running false"};
  }
  const bool expected = after.isTrusted && !after.snapshot.isPermissionStale;
  if (isOverdue("permission", after.hasPermission != expected, after.now)) {
    return Violation{"permission", "hasAccessibilityPermission is " + yesNo(after.hasPermission),
                     "model.hasAccessibilityPermission " + yesNo(expected)};
  }
  return std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkGuard(const Observation& before,
                                                     const Observation& after) {
  // A start without the permission changes nothing; the next look at the permission, within a
  // second, ends the guard or restarts it with the settings of now.
  if (!after.isTrusted || !before.isTrusted) {
    untrustedAt_ = after.now;
  }
  if (!after.isGuardRunning) {
    if (after.isUnlocked) {
      return Violation{"guard", "it is temporarily unlocked but not running",
                       "guard.isTemporarilyUnlocked false"};
    }
    return std::nullopt;
  }
  if (filter_.step().hasShutOff && !after.isTapEnabled && !after.isQueueHeld) {
    return Violation{"guard", "it counts as running after it shut itself off",
                     "guard.running false"};
  }
  if (!after.stored.wants) {
    return Violation{"guard", "it runs although the lock is off", "guard.running false"};
  }
  if (untrustedAt_ && after.now - *untrustedAt_ <= Clock::nanosecondsPerSecond) {
    return std::nullopt;
  }
  Check problem = checkGuardSettings(after.snapshot.guard, after.stored);
  // In a modal session the model learns of new displays later, so a guard that has waited for them
  // starts with the settings of its stop.
  const bool isExcused = problem && after.isQueueHeld;
  return isOverdue("guard settings", isExcused, after.now) || !isExcused ? problem : std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkGuardSettings(const GuardSnapshot& guard,
                                                             const Stored& stored) const {
  const GuardGoal goal = stored.goal();
  if (guard.blocksAllDisplays != goal.prevents) {
    return Violation{"guard", "it runs in the wrong mode",
                     "guard.blocksAllDisplays " + yesNo(goal.prevents)};
  }
  if (static_cast<std::uint64_t>(guard.overrideModifier.flagMask()) != stored.unlockMask()) {
    return Violation{"guard", "it has the wrong unlock key",
                     "guard.overrideModifier \"" + stored.modifier + "\""};
  }
  std::optional<std::string> problem;
  for (const DisplayConfiguration& configuration : filter_.configurations()) {
    problem = configuration.zoneProblem(guard.zones, goal);
    if (!problem) {
      break;
    }
  }
  return problem ? Check(Violation{"zones", *problem}) : std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkModel(const Observation& after) const {
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
    return Violation{"model", "lastRestoreSucceeded was assigned",
                     "model.lastRestoreSucceeded null"};
  }
  if (!after.isQueueHeld && model.isTemporarilyUnlocked != after.isUnlocked) {
    return Violation{"model", "isTemporarilyUnlocked is not the guard's",
                     "model.isTemporarilyUnlocked " + yesNo(after.isUnlocked)};
  }
  return std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkStatus(const Observation& after) const {
  const bool isSettled = !after.isQueueHeld && !isStale() && !after.isChangingTogether;
  if (!isSettled) {
    return std::nullopt;
  }
  const DisplayConfiguration& configuration = filter_.configurations().front();
  const std::vector<DisplaySnapshot>& listed = after.snapshot.displays;
  const bool isSame = std::ranges::equal(listed, configuration.screens, isListedAs);
  if (!isSame && (hasListed_ || !listed.empty())) {
    return Violation{"displays", "the model does not list the attached displays"};
  }
  const GuardGoal goal = after.stored.goal();
  OrvaneStatus expected = after.isGuardRunning ? OrvaneStatus::locked : OrvaneStatus::unlocked;
  if (!after.hasPermission) {
    expected = OrvaneStatus::permissionRequired;
  } else if (!goal.prevents && after.stored.selected &&
             (listed.empty() || configuration.named(goal.target) == nullptr)) {
    expected = OrvaneStatus::targetMissing;
  } else if (!configuration.edge) {
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

}  // namespace orvane::desk::explore
