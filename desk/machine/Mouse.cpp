// The path of a movement through taps, pointer and Dock.
#include "desk/machine/Mouse.hpp"

#include <cmath>

namespace orvane::desk {

namespace {

/// The other event types of Quartz Event Services; the application taps none of them.
constexpr auto leftMouseDown = static_cast<CGEventType>(1);
constexpr auto leftMouseUp = static_cast<CGEventType>(2);
constexpr auto leftMouseDragged = static_cast<CGEventType>(6);
constexpr auto scrollWheel = static_cast<CGEventType>(22);

}  // namespace

PointerMovement Mouse::moveTo(CGPoint goal) {
  if (displays_.isEmpty() || !std::isfinite(goal.x) || !std::isfinite(goal.y)) {
    return {PointerMovement::Outcome::none, pointer_.location(), pointer_.location()};
  }
  ++counters_.hardwareMovements;
  const CGPoint wanted = pointer_.reachable(goal);
  if (cursor_ == Cursor::held) {
    return deliver(goal, wanted, pointer_);
  }
  Pointer followed = pointer_;
  pointer_.settle(wanted);
  return deliver(goal, wanted, followed);
}

PointerMovement Mouse::deliver(CGPoint goal, CGPoint wanted, Pointer& followed) {
  __CGEvent event{isButtonPressed_ ? leftMouseDragged : kCGEventMouseMoved, modifierKeys_.flags(),
                  wanted};
  if (!taps_.deliver(event)) {
    ++counters_.droppedEvents;
    return {PointerMovement::Outcome::dropped, wanted, followed.location()};
  }
  const bool isMovedBack = event.location.x != wanted.x || event.location.y != wanted.y;
  if (isMovedBack) {
    ++counters_.relocatedEvents;
  }
  followed.settle(event.location);
  if (const auto index = followed.displayIndex()) {
    dock_.pointerMoved(goal, followed.location(), *index);
  }
  if (listener_ != nullptr) {
    listener_->pointerMovedTo(followed.location());
  }
  return {isMovedBack ? PointerMovement::Outcome::movedBack : PointerMovement::Outcome::passed,
          wanted, followed.location()};
}

void Mouse::pressButton() {
  if (displays_.isEmpty() || isButtonPressed_) {
    return;
  }
  isButtonPressed_ = true;
  if (sendEvent(leftMouseDown) && listener_ != nullptr) {
    listener_->buttonPressedAt(pointer_.location());
  }
}

void Mouse::releaseButton() {
  if (!isButtonPressed_) {
    return;
  }
  isButtonPressed_ = false;
  if (sendEvent(leftMouseUp) && listener_ != nullptr) {
    listener_->buttonReleasedAt(pointer_.location());
  }
}

void Mouse::turnWheel(double horizontal, double vertical) {
  if (displays_.isEmpty() || !std::isfinite(horizontal) || !std::isfinite(vertical)) {
    return;
  }
  if (sendEvent(scrollWheel) && listener_ != nullptr) {
    listener_->wheelTurnedAt(pointer_.location(), horizontal, vertical);
  }
}

bool Mouse::sendEvent(CGEventType type) {
  __CGEvent event{type, modifierKeys_.flags(), pointer_.location()};
  return taps_.deliver(event);
}

std::optional<CGPoint> Mouse::post(CGPoint location, std::uint64_t flags) {
  __CGEvent event{kCGEventMouseMoved, static_cast<CGEventFlags>(flags), location};
  if (!taps_.deliver(event)) {
    return std::nullopt;
  }
  return event.location;
}

}  // namespace orvane::desk
