// Creation and removal of event taps, and the delivery of events to them.
#include "desk/machine/EventTaps.hpp"

#include <algorithm>
#include <utility>

namespace orvane::desk {

std::optional<std::uint64_t> EventTaps::create(CGEventTapPlacement placement,
                                               CGEventTapOptions options,
                                               CGEventMask eventsOfInterest,
                                               CGEventTapCallBack callback, void* userInfo) {
  if (refusesCreation_ || callback == nullptr) {
    return std::nullopt;
  }
  auto tap =
      std::make_unique<EventTap>(EventTap{eventsOfInterest, callback, userInfo,
                                          options == kCGEventTapOptionListenOnly, nextIdentity_++});
  const std::uint64_t identity = tap->identity;
  arrivals_.emplace_back(placement, std::move(tap));
  needsTidying_ = true;
  tidy();
  return identity;
}

EventTap* EventTaps::find(std::uint64_t identity) {
  for (const auto& tap : order_) {
    if (tap->identity == identity && tap->isAlive) {
      return tap.get();
    }
  }
  for (const auto& [placement, tap] : arrivals_) {
    if (tap->identity == identity && tap->isAlive) {
      return tap.get();
    }
  }
  return nullptr;
}

void EventTaps::remove(std::uint64_t identity) {
  if (EventTap* const tap = find(identity)) {
    tap->isAlive = false;
    needsTidying_ = true;
    tidy();
  }
}

void EventTaps::killAll() {
  for (const auto& tap : order_) {
    tap->isAlive = false;
  }
  for (const auto& [placement, tap] : arrivals_) {
    tap->isAlive = false;
  }
  needsTidying_ = true;
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
  bool isKept = true;
  for (const auto& tap : order_) {
    if (tap->isEnabled && tap->isAlive && (tap->eventsOfInterest & bit) != 0 &&
        runLoop_.isIn(tap->sourceModes) && !call(*tap, event)) {
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
  int disabled = 0;
  for (const auto& tap : order_) {
    if (!tap->isEnabled || !tap->isAlive) {
      continue;
    }
    tap->isEnabled = false;
    ++disabled;
    if (runLoop_.isIn(tap->sourceModes)) {
      __CGEvent event{reason, CGEventFlags{}, location};
      // The event is only a notice, so the callback's result is ignored.
      static_cast<void>(call(*tap, event));
    }
  }
  --deliveriesUnderWay_;
  tidy();
  return disabled;
}

void EventTaps::disableAllSilently(bool forGood) {
  for (const auto& tap : order_) {
    tap->isEnabled = false;
    tap->canBeEnabled = tap->canBeEnabled && !forGood;
  }
}

std::size_t EventTaps::aliveCount() const {
  const auto isAlive = [](const auto& tap) { return tap->isAlive; };
  return static_cast<std::size_t>(
      std::count_if(order_.begin(), order_.end(), isAlive) +
      std::count_if(arrivals_.begin(), arrivals_.end(),
                    [&](const auto& arrival) { return isAlive(arrival.second); }));
}

bool EventTaps::isAnyEnabled() const {
  const auto isEnabled = [](const auto& tap) { return tap->isAlive && tap->isEnabled; };
  return std::any_of(order_.begin(), order_.end(), isEnabled) ||
         std::any_of(arrivals_.begin(), arrivals_.end(),
                     [&](const auto& arrival) { return isEnabled(arrival.second); });
}

void EventTaps::tidy() {
  // The list must not change while an event passes through it.
  if (!needsTidying_ || deliveriesUnderWay_ > 0) {
    return;
  }
  needsTidying_ = false;
  for (auto& [placement, tap] : std::exchange(arrivals_, {})) {
    order_.insert(placement == kCGHeadInsertEventTap ? order_.begin() : order_.end(),
                  std::move(tap));
  }
  std::erase_if(order_, [](const auto& tap) { return !tap->isAlive; });
}

}  // namespace orvane::desk
