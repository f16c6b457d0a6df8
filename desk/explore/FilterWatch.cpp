// The filter against its promise, event by event.
#include "desk/explore/FilterWatch.hpp"

#include <algorithm>

#include "desk/explore/Moment.hpp"

namespace orvane::desk::explore {

namespace {

std::string textOf(CGPoint place) {
  return std::to_string(place.x) + ", " + std::to_string(place.y);
}

bool isSame(CGPoint first, CGPoint second) {
  return first.x == second.x && first.y == second.y;
}

}  // namespace

void FilterWatch::noteSituation() {
  Situation present = Situation::of(machine_);
  if (std::ranges::find(situations_, present) == situations_.end()) {
    situations_.push_back(std::move(present));
  }
}

void FilterWatch::forgetSituations() {
  situations_ = {Situation::of(machine_)};
}

void FilterWatch::willDeliver(const __CGEvent& event) {
  const bool isRunning = application_.isRunning() && application_.model().isGuardRunning();
  const Stored stored = Stored::of(machine_.userDefaults);
  wish_ = stored.wish();
  isGuarded_ = isRunning && event.type == kCGEventMouseMoved && machine_.eventTaps.isAnyEnabled();
  const std::uint64_t mask = stored.unlockMask();
  isUnlocked_ = (static_cast<std::uint64_t>(event.flags) & mask) == mask;
  const bool isDisabled = machine_.eventTaps.aliveCount() > 0 && !machine_.eventTaps.isAnyEnabled();
  step_.hasMetDisabledTap = step_.hasMetDisabledTap || (isRunning && isDisabled);
  step_.hasFreeMovement = step_.hasFreeMovement || !isGuarded_ || isUnlocked_;
  step_.hasUnlockedMovement = step_.hasUnlockedMovement || (isGuarded_ && isUnlocked_);
}

void FilterWatch::didDeliver(const __CGEvent& before, const __CGEvent& after, bool isKept) {
  ++events_;
  step_.hasMovedBack = step_.hasMovedBack || !isSame(before.location, after.location);
  if (!step_.violation) {
    if (auto text = complaint(before, after, isKept)) {
      step_.violation = Violation{"filter", std::move(*text)};
    }
  }
}

std::optional<std::string> FilterWatch::complaint(const __CGEvent& before, const __CGEvent& after,
                                                  bool isKept) const {
  if (!isKept) {
    return "an event was dropped at " + textOf(before.location);
  }
  if (after.type != before.type || after.flags != before.flags) {
    return "more than the place of an event was changed";
  }
  if (!isGuarded_ || isUnlocked_) {
    return isSame(before.location, after.location)
               ? std::nullopt
               : std::optional("an event that is free was moved from " + textOf(before.location));
  }
  const bool isRight = std::ranges::any_of(situations_, [&](const Situation& situation) {
    return isSame(situation.guarded(before.location, wish_), after.location);
  });
  return isRight ? std::nullopt
                 : std::optional("an event at " + textOf(before.location) + " came out at " +
                                 textOf(after.location));
}

}  // namespace orvane::desk::explore
