// Compares each event before and after the taps.
#include "desk/explore/FilterWatch.hpp"

#include <algorithm>
#include <utility>

namespace orvane::desk::explore {

namespace {

std::string textOf(CGPoint place) {
  return std::to_string(place.x) + ", " + std::to_string(place.y);
}

/// Whether the event has the unlock key.
bool unlocks(const Stored& stored, const __CGEvent& event) {
  const std::uint64_t mask = stored.unlockMask();
  return (static_cast<std::uint64_t>(event.flags) & mask) == mask;
}

bool isSame(CGPoint first, CGPoint second) {
  return first.x == second.x && first.y == second.y;
}

}  // namespace

void FilterWatch::addConfiguration() {
  const std::int64_t now = machine_.clock.now();
  DisplayConfiguration present = DisplayConfiguration::of(machine_);
  if (present != present_ || machine_.displays.isChanging()) {
    // The guard looks at the Dock's edge once a second.
    staleUntil_ = std::max(
        staleUntil_, now + Clock::nanosecondsPerSecond + machine_.notifications.delayNanoseconds);
    present_ = std::move(present);
  }
  // The guard keeps its zones at an unknown edge.
  if (now > staleUntil_ && present_.edge) {
    configurations_ = {present_};
  } else if (std::ranges::find(configurations_, present_) == configurations_.end()) {
    configurations_.push_back(present_);
  }
}

void FilterWatch::resetConfigurations() {
  present_ = DisplayConfiguration::of(machine_);
  configurations_ = {present_};
  staleUntil_ = 0;
}

void FilterWatch::beginStep() {
  step_ = {};
  runaway_.beginStep();
  noteSettings();
}

void FilterWatch::noteSettings() {
  Stored present = Stored::of(machine_.userDefaults);
  const std::int64_t writes = machine_.userDefaults.writeCount("isOrvaneEnabled");
  if (std::exchange(switchWrites_, writes) != writes) {
    // A guard that is switched off or to another mode is stopped, and forgets its blocks.
    runaway_.beginStep();
  }
  if (!machine_.runLoop.isMainQueueHeld()) {
    settings_.clear();
  }
  std::erase(settings_, present);
  settings_.push_back(std::move(present));
}

void FilterWatch::willDeliver(const __CGEvent& event) {
  isTapEnabled_ = machine_.eventTaps.isAnyEnabled();
  isGuarded_ = isTapEnabled_ && event.type == kCGEventMouseMoved;
  noteSettings();
  const bool isUnlocked = unlocks(settings_.back(), event);
  const bool isDisabled = machine_.eventTaps.aliveCount() > 0 && !isTapEnabled_;
  step_.hasMetDisabledTap = step_.hasMetDisabledTap || isDisabled;
  step_.hasFreeMovement = step_.hasFreeMovement || !isGuarded_ || isUnlocked;
}

void FilterWatch::didDeliver(const __CGEvent& before, const __CGEvent& after, bool isKept) {
  ++events_;
  const bool hasShutOff = isTapEnabled_ && !machine_.eventTaps.isAnyEnabled();
  const bool hasMovedBack = !isSame(before.location, after.location);
  step_.hasShutOff = step_.hasShutOff || hasShutOff;
  step_.hasMovedBack = step_.hasMovedBack || hasMovedBack;
  std::optional<Violation> found;
  if (auto text = problem(before, after, isKept)) {
    found = Violation{"filter", std::move(*text)};
  } else if (hasMovedBack) {
    found = runaway_.noteBlock(machine_.clock.now(), hasShutOff);
  } else if (hasShutOff) {
    found = Violation{"filter", "the guard shut itself off without a block"};
  }
  if (!step_.violation) {
    step_.violation = std::move(found);
  }
}

std::optional<std::string> FilterWatch::problem(const __CGEvent& before, const __CGEvent& after,
                                                bool isKept) const {
  if (!isKept) {
    return "an event was dropped at " + textOf(before.location);
  }
  if (after.type != before.type || after.flags != before.flags) {
    return "an event was changed in more than its location";
  }
  const bool isFine = std::ranges::any_of(
      settings_, [&](const Stored& stored) { return isExpected(before, after, stored); });
  return isFine ? std::nullopt
                : std::optional("an event at " + textOf(before.location) + " was moved to " +
                                textOf(after.location));
}

bool FilterWatch::isExpected(const __CGEvent& before, const __CGEvent& after,
                             const Stored& stored) const {
  if (!isGuarded_ || unlocks(stored, before)) {
    return isSame(before.location, after.location);
  }
  return std::ranges::any_of(configurations_, [&](const DisplayConfiguration& configuration) {
    return isSame(configuration.filtered(before.location, stored.goal()), after.location);
  });
}

}  // namespace orvane::desk::explore
