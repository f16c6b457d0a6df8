// The way of a movement through taps, pointer and Dock.
#include "desk/machine/Mouse.hpp"

#include <cmath>

namespace orvane::desk {

void Mouse::moveTo(CGPoint goal) {
  if (displays_.isEmpty() || !std::isfinite(goal.x) || !std::isfinite(goal.y)) {
    return;
  }
  ++counters_.hardwareMovements;
  const CGPoint reached = pointer_.reachable(goal);
  __CGEvent event{kCGEventMouseMoved, modifierKeys_.flags(), reached};
  if (!taps_.deliver(event)) {
    ++counters_.droppedEvents;
    return;
  }
  if (event.location.x != reached.x || event.location.y != reached.y) {
    ++counters_.relocatedEvents;
  }
  pointer_.settle(event.location);
  if (const auto index = pointer_.displayIndex()) {
    dock_.pointerMoved(goal, pointer_.place(), *index);
  }
  if (listener_ != nullptr) {
    listener_->pointerMovedTo(pointer_.place());
  }
}

std::optional<CGPoint> Mouse::post(CGPoint location, std::uint64_t flags) {
  __CGEvent event{kCGEventMouseMoved, static_cast<CGEventFlags>(flags), location};
  if (!taps_.deliver(event)) {
    return std::nullopt;
  }
  return event.location;
}

}  // namespace orvane::desk
