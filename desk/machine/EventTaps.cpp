// Creation and removal of event taps, and the delivery of events to them.
#include "desk/machine/EventTaps.hpp"

#include <algorithm>

namespace orvane::desk {

std::optional<std::uint64_t> EventTaps::create(CGEventTapPlacement placement,
                                               CGEventTapOptions options,
                                               CGEventMask eventsOfInterest,
                                               CGEventTapCallBack callback, void* userInfo) {
  if (refusesCreation_ || callback == nullptr) {
    return std::nullopt;
  }
  const EventTap tap{eventsOfInterest, callback, userInfo, options == kCGEventTapOptionListenOnly,
                     nextIdentity_++};
  taps_.insert(placement == kCGHeadInsertEventTap ? taps_.begin() : taps_.end(), tap);
  return tap.identity;
}

EventTap* EventTaps::find(std::uint64_t identity) {
  const auto found = std::ranges::find(taps_, identity, &EventTap::identity);
  return found != taps_.end() && found->isAlive ? &*found : nullptr;
}

void EventTaps::remove(std::uint64_t identity) {
  if (EventTap* const tap = find(identity)) {
    tap->isAlive = false;
    hasDeadTaps_ = true;
    tidy();
  }
}

void EventTaps::killAll() {
  for (EventTap& tap : taps_) {
    tap.isAlive = false;
  }
  hasDeadTaps_ = true;
  tidy();
}

bool EventTaps::deliverToTaps(__CGEvent& event) {
  return witness_ == nullptr ? deliverInOrder(event) : deliverBeforeWitness(event);
}

bool EventTaps::deliverBeforeWitness(__CGEvent& event) {
  const __CGEvent before = event;
  witness_->willDeliver(before);
  const bool isKept = deliverInOrder(event);
  witness_->didDeliver(before, event, isKept);
  return isKept;
}

bool EventTaps::deliverInOrder(__CGEvent& event) {
  ++deliveriesUnderWay_;
  // Ordinary event types are bit numbers of the mask; greater ones are notices to a tap.
  const CGEventMask bit = event.type < 64 ? CGEventMask{1} << event.type : 0;
  const std::uint64_t firstNew = nextIdentity_;
  bool isKept = true;
  for (EventTap& tap : taps_) {
    if (tap.isEnabled && tap.isAlive && tap.identity < firstNew &&
        (tap.eventsOfInterest & bit) != 0 && runLoop_.isIn(tap.sourceModes) && !call(tap, event)) {
      isKept = false;
      break;
    }
  }
  --deliveriesUnderWay_;
  tidy();
  return isKept;
}

bool EventTaps::call(EventTap& tap, __CGEvent& event) {
  ++deliveries_;
  if (tap.isListenOnly) {
    __CGEvent copy = event;
    tap.callback(nullptr, event.type, &copy, tap.userInfo);
    return true;
  }
  const CGEventRef result = tap.callback(nullptr, event.type, &event, tap.userInfo);
  if (result == nullptr) {
    return false;
  }
  if (result != &event) {
    event = *result;
  }
  return true;
}

int EventTaps::disableAll(CGEventType reason, CGPoint location) {
  ++deliveriesUnderWay_;
  const std::uint64_t firstNew = nextIdentity_;
  int disabled = 0;
  for (EventTap& tap : taps_) {
    if (!tap.isEnabled || !tap.isAlive || tap.identity >= firstNew) {
      continue;
    }
    tap.isEnabled = false;
    ++disabled;
    if (runLoop_.isIn(tap.sourceModes)) {
      __CGEvent event{reason, CGEventFlags{}, location};
      // The event is only a notice, so the callback's result is ignored.
      static_cast<void>(call(tap, event));
    }
  }
  --deliveriesUnderWay_;
  tidy();
  return disabled;
}

void EventTaps::disableAllSilently(bool forGood) {
  for (EventTap& tap : taps_) {
    tap.isEnabled = false;
    tap.canBeEnabled = tap.canBeEnabled && !forGood;
  }
}

std::size_t EventTaps::aliveCount() const {
  return static_cast<std::size_t>(std::ranges::count(taps_, true, &EventTap::isAlive));
}

bool EventTaps::isAnyEnabled() const {
  return std::ranges::any_of(taps_,
                             [](const EventTap& tap) { return tap.isAlive && tap.isEnabled; });
}

CGEventMask EventTaps::eventsOfInterest() const {
  CGEventMask events = 0;
  for (const EventTap& tap : taps_) {
    events |= tap.isAlive ? tap.eventsOfInterest : 0;
  }
  return events;
}

void EventTaps::tidy() {
  if (hasDeadTaps_ && deliveriesUnderWay_ == 0) {
    hasDeadTaps_ = false;
    std::erase_if(taps_, [](const EventTap& tap) { return !tap.isAlive; });
  }
}

}  // namespace orvane::desk
