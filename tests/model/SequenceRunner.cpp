// Applies each action to the application and to its reference.
#include "tests/model/SequenceRunner.hpp"

#include <array>
#include <iomanip>
#include <sstream>

#include "Orvane/base/ProcessShared.hpp"
#include "Orvane/permission/OrvaneAccessibilityPermission.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane::reference {

namespace {

/// Small, so that the reference can examine every point of every edge.
const std::array<CGRect, 4> slots = {
    {{{0, 0}, {120, 80}}, {{120, 0}, {100, 80}}, {{0, 80}, {120, 60}}, {{30, -60}, {70, 60}}}};
const std::array<std::string, 4> modifiers = {"option", "control", "shift", "command"};
const std::array<std::string, 3> languages = {"system", "english", "chinese"};
const std::array<const char*, 5> keys = {"selectedDisplayID", "isOrvaneEnabled",
                                         "hidesDockOnAllDisplays", "temporaryUnlockModifier",
                                         "appLanguage"};

ProcessShared<OrvaneModel>& sharedModel() {
  static ProcessShared<OrvaneModel> shared;
  return shared;
}

void describeZone(std::ostream& out, const CGRect& rect, const CGVector& nudge) {
  out << " [" << rect.origin.x << " " << rect.origin.y << " " << rect.size.width << " "
      << rect.size.height << " by " << nudge.dx << " " << nudge.dy << "]";
}

void describeValue(std::ostream& out, const Value& value) {
  std::visit([&](const auto& plain) { out << plain; }, value);
}

}  // namespace

SequenceRunner::SequenceRunner() {
  attach(0);
  attach(1);
  setTrusted(true);
  launch();
}

OrvaneModel& SequenceRunner::model() const {
  return sharedModel().get();
}

void SequenceRunner::settle() {
  machine().runDue();
  if (reference_) {
    reference_->settle();
  }
}

void SequenceRunner::launch() {
  if (reference_) {
    return;
  }
  machine().process.start();
  OrvaneAccessibilityPermission::setPrompt(
      [this](std::function<void()> onGranted) { prompts_.push_back(std::move(onGranted)); });
  model().restoreLockIfNeeded();
  reference_.emplace(world_);
  reference_->restore();
}

void SequenceRunner::endProcess() {
  machine().process.end();
  reference_.reset();
  // Answers to an ended process have no effect.
  for (const auto& late : prompts_) {
    late();
  }
  prompts_.clear();
}

void SequenceRunner::corruptStorage(const Action& action) {
  const std::string key = keys[action.first % keys.size()];
  const std::array<Value, 4> values = {Value("unheard of"), Value(true), Value(7.0), Value("2")};
  const Value value = values[action.second % values.size()];
  world_.write(key, value);
  machine().userDefaults.set(key, value);
}

void SequenceRunner::displaysChanged() {
  world_.arrange();
  if (reference_) {
    reference_->displaysChanged();
  }
}

void SequenceRunner::attach(std::size_t slot) {
  const auto number = static_cast<std::uint32_t>(slot + 1);
  const Screen screen{.number = number,
                      .uuid = desk::uuidNamed(static_cast<char>('A' + slot)),
                      .windowFrame = slots.at(slot)};
  for (const Screen& attached : world_.screens) {
    if (attached.uuid == screen.uuid || attached.number == number) {
      return;
    }
  }
  desk::Display display = desk::displayOf(number, "Any", screen.windowFrame);
  display.uuid = screen.uuid;
  desk::attach(machine(), display);
  world_.screens.push_back(screen);
  displaysChanged();
}

void SequenceRunner::detach(std::size_t index) {
  if (index < world_.screens.size()) {
    const auto gone = world_.screens.begin() + static_cast<std::ptrdiff_t>(index);
    desk::detach(machine(), gone->number);
    world_.screens.erase(gone);
    displaysChanged();
  }
}

void SequenceRunner::renumber(std::size_t index, std::uint32_t number) {
  if (index < world_.screens.size() &&
      machine().displays.renumber(world_.screens[index].number, number) == std::nullopt) {
    world_.screens[index].number = number;
    displaysChanged();
  }
}

void SequenceRunner::moveScreen(std::size_t index, std::size_t variant) {
  if (index >= world_.screens.size()) {
    return;
  }
  Screen& screen = world_.screens[index];
  screen.windowFrame.origin.x += static_cast<double>(variant) - 3;
  screen.windowFrame.origin.y += variant % 2 == 0 ? 1 : -1;
  screen.windowFrame.size.width += variant == 7 ? 1 : 0;
  EXPECT_EQ(machine().displays.setFrame(screen.number, screen.windowFrame), std::nullopt);
  displaysChanged();
}

void SequenceRunner::setDockEdge(std::size_t choice) {
  const std::array<std::optional<Value>, 8> choices = {std::nullopt, "bottom",   "left", "right",
                                                       "top",        "sideways", 3.0,    "bottom"};
  const DockPosition before = world_.dockLiesAt();
  world_.orientation = choices.at(choice);
  if (world_.orientation) {
    desk::setDockOrientation(machine(), *world_.orientation);
  } else {
    machine().preferences.remove(desk::dockDomain(), desk::Dock::orientationKey);
  }
  // The visible frame of the Dock's display has changed, which counts as a display change.
  if (world_.dockLiesAt() != before && !world_.screens.empty() && reference_) {
    reference_->displaysChanged();
  }
}

void SequenceRunner::setTrusted(bool trusted) {
  machine().permission.setTrusted(trusted);
  if (world_.isTrusted && !trusted && reference_) {
    reference_->guard.permissionLost();
  }
  world_.isTrusted = trusted;
}

void SequenceRunner::movePointer(std::size_t where, std::size_t howOften) {
  const std::size_t count = std::array<std::size_t, 8>{1, 1, 1, 2, 20, 60, 90, 180}.at(howOften);
  CGRect frame{{0, 0}, {50, 50}};
  if (!world_.screens.empty()) {
    frame = world_.screens[(where / 2) % world_.screens.size()].frame;
  }
  // In the corner at the bottom and right of a screen, or in the one at the top and left.
  const CGPoint place = where % 2 == 0 ? CGPoint{frame.origin.x + frame.size.width - 5.5,
                                                 frame.origin.y + frame.size.height - 12}
                                       : CGPoint{frame.origin.x + 11.5, frame.origin.y + 20};
  for (std::size_t done = 0; done < count; ++done) {
    outcomes_.first = machine().mouse.post(place, heldKeys_).value_or(CGPoint{});
    outcomes_.second = place;
    if (reference_) {
      reference_->move(place, heldKeys_, outcomes_.second);
    }
  }
}

void SequenceRunner::grant() {
  if (prompts_.empty() || !reference_) {
    return;
  }
  setTrusted(true);
  const auto onGranted = prompts_.front();
  prompts_.erase(prompts_.begin());
  onGranted();
  const Model::Request request = reference_->requests.front();
  reference_->requests.erase(reference_->requests.begin());
  reference_->granted(request);
}

void SequenceRunner::perform(const Action& action) {
  performOnTheWorld(action);
  if (reference_) {
    performOnTheApplication(action);
  }
  settle();
}

void SequenceRunner::performOnTheWorld(const Action& action) {
  using Kind = Action::Kind;
  const auto [kind, first, second] = action;
  switch (kind) {
    case Kind::launch:
      return launch();
    case Kind::quit:
      settle();
      return endProcess();
    case Kind::crash:
      // In the middle of a movement.
      movePointer(first, second);
      return endProcess();
    case Kind::corruptStorage:
      return reference_ ? void() : corruptStorage(action);
    case Kind::attach:
      return attach(first % slots.size());
    case Kind::detach:
      return detach(first);
    case Kind::moveScreen:
      return moveScreen(first, second);
    case Kind::renumber:
      return renumber(first, static_cast<std::uint32_t>(20 + second));
    case Kind::setDockEdge:
      return setDockEdge(first);
    case Kind::setTrusted:
      return setTrusted(first % 4 != 0);
    case Kind::refuseTaps:
      world_.refusesTaps = first % 2 == 0;
      return machine().eventTaps.setRefusesCreation(world_.refusesTaps);
    case Kind::holdKeys:
      heldKeys_ =
          std::array<std::uint64_t, 8>{0, 0, 0x80000, 0x80000, 0x40000, 0x20000, 0x120000, 0x100000}
              .at(first);
      return;
    case Kind::movePointer:
      return movePointer(first, second);
    case Kind::disableTaps:
      machine().eventTaps.disableAll(
          first % 2 == 0 ? kCGEventTapDisabledByTimeout : kCGEventTapDisabledByUserInput, {});
      return;
    case Kind::passTime: {
      const double seconds = std::array<double, 8>{0.125, 0.25, 0.5, 1, 1, 2, 2.125, 10}.at(first);
      machine().advance(seconds);
      world_.now += seconds;
      return reference_ ? reference_->catchUp() : void();
    }
    default:
      return;
  }
}

void SequenceRunner::performOnTheApplication(const Action& action) {
  using Kind = Action::Kind;
  switch (action.kind) {
    case Kind::toggleLock:
      model().toggleLock();
      return reference_->toggleLock();
    case Kind::togglePin:
      model().toggleSelectedDisplayLock();
      return reference_->togglePin();
    case Kind::togglePrevent:
      model().toggleHideDockOnAllDisplays();
      return reference_->togglePrevent();
    case Kind::selectDisplay: {
      // By a display's identifier, as views pass it, or by an alias, attached or not.
      const std::string id = action.second < 6
                                 ? desk::uuidNamed(static_cast<char>('A' + action.first % 4))
                                 : std::to_string(action.first);
      model().selectDisplay(id);
      return reference_->select(id);
    }
    case Kind::setModifier: {
      const std::string& modifier = modifiers[action.first % modifiers.size()];
      model().setTemporaryUnlockModifier(OrvaneModifier::fromRawValue(modifier));
      return reference_->setModifier(modifier);
    }
    case Kind::setLanguage: {
      const std::string& language = languages[action.first % languages.size()];
      model().setAppLanguage(OrvaneLanguage::fromRawValue(language));
      return reference_->setLanguage(language);
    }
    case Kind::setPrevents:
      model().setHidesDockOnAllDisplays(action.first % 2 == 0);
      return reference_->setPrevents(action.first % 2 == 0);
    case Kind::refresh:
      model().refreshDisplays();
      return reference_->refresh();
    case Kind::openAccessibilitySettings:
      model().openAccessibilitySettings();
      return reference_->openAccessibilitySettings();
    case Kind::grant:
      return grant();
    default:
      return;
  }
}

std::string SequenceRunner::seen() {
  std::ostringstream out;
  out << std::setprecision(17);
  if (machine().process.isRunning()) {
    const OrvaneModel& real = model();
    const GuardSnapshot guard = real.guardService().snapshot();
    out << "status " << static_cast<int>(real.status()) << " running " << real.isGuardRunning()
        << " observing " << guard.isObservingScreens << "\nworking taps "
        << machine().eventTaps.aliveCount() << " enabled " << machine().eventTaps.isAnyEnabled()
        << "\ntarget " << guard.lockedDisplayIdentifier << " modifier "
        << guard.overrideModifier.rawValue() << " blocks all " << guard.blocksAllDisplays
        << " blocked " << guard.blockedCount << " recently " << guard.recentBlockCount << "\nzones";
    for (const TriggerZone& zone : guard.zones) {
      describeZone(out, zone.rect, zone.nudgeVector);
    }
    out << "\nselected " << real.selectedDisplayID().value().value_or("none") << " displays";
    for (const DisplaySnapshot& display : real.displays().value()) {
      out << " " << display.id;
    }
    out << "\npermission " << real.hasAccessibilityPermission().value() << " unlocked "
        << real.isTemporarilyUnlocked().value() << " " << guard.isTemporarilyUnlocked
        << " prevents " << real.hidesDockOnAllDisplays().value() << " modifier "
        << real.temporaryUnlockModifier().value().rawValue() << " language "
        << real.appLanguage().value().rawValue() << "\nchecked " << real.lastCheckedAt().value()
        << " asking " << OrvaneAccessibilityPermission::isChecking() << " asked " << prompts_.size()
        << "\n";
  }
  for (const auto& [key, value] : machine().userDefaults.values()) {
    out << key << " = ";
    describeValue(out, value);
    out << "\n";
  }
  for (const char* const key : keys) {
    out << key << " written " << machine().userDefaults.writeCount(key) << "\n";
  }
  return out.str();
}

std::string SequenceRunner::expected() {
  std::ostringstream out;
  out << std::setprecision(17);
  if (reference_) {
    const Guard& guard = reference_->guard;
    const bool works = guard.hasTap && !guard.tapIsDead;
    out << "status " << static_cast<int>(reference_->status()) << " running " << guard.hasTap
        << " observing " << guard.observes << "\nworking taps " << (works ? 1 : 0) << " enabled "
        << works << "\ntarget " << guard.target << " modifier " << guard.modifier << " blocks all "
        << guard.blocksAll << " blocked " << guard.blocked << " recently " << guard.recent.size()
        << "\nzones";
    for (const Zone& zone : guard.zones) {
      describeZone(out, zone.rect, zone.nudge);
    }
    out << "\nselected " << reference_->selected.value_or("none") << " displays";
    for (const std::string& display : reference_->displays) {
      out << " " << display;
    }
    out << "\npermission " << reference_->hasPermission << " unlocked " << reference_->isUnlocked
        << " " << guard.isUnlocked << " prevents " << reference_->prevents << " modifier "
        << reference_->modifier << " language " << reference_->language << "\nchecked "
        << reference_->lastChecked << " asking " << reference_->isAsking << " asked "
        << reference_->requests.size() << "\n";
  }
  for (const auto& [key, value] : world_.disk) {
    out << key << " = ";
    describeValue(out, value);
    out << "\n";
  }
  for (const char* const key : keys) {
    out << key << " written " << world_.writes[key] << "\n";
  }
  return out.str();
}

bool SequenceRunner::endsCleanly() {
  reference_.reset();
  return scope_.end().empty();
}

}  // namespace orvane::reference
