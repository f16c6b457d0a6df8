// Keeps the pointer on the displays.
#include "desk/machine/Pointer.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvane::desk {

std::optional<std::size_t> Pointer::displayIndex() const {
  return displayIndex_ < displays_.count() ? std::optional(displayIndex_) : std::nullopt;
}

CGPoint Pointer::clamped(CGPoint point, CGRect frame) {
  const double left = frame.origin.x;
  const double top = frame.origin.y;
  // A display thinner than a point has only one position.
  const double right = std::max(left, left + frame.size.width - 1);
  const double bottom = std::max(top, top + frame.size.height - 1);
  return {std::clamp(point.x, left, right), std::clamp(point.y, top, bottom)};
}

CGPoint Pointer::clampedToDisplay(CGPoint goal) const {
  const auto& frames = displays_.globalFrames();
  if (displayIndex_ < frames.size()) {
    return clamped(goal, frames[displayIndex_]);
  }
  CGPoint nearest = location_;
  double smallestDistance = std::numeric_limits<double>::infinity();
  for (const CGRect& frame : frames) {
    const CGPoint place = clamped(goal, frame);
    const double distance = std::hypot(place.x - goal.x, place.y - goal.y);
    if (distance < smallestDistance) {
      smallestDistance = distance;
      nearest = place;
    }
  }
  return nearest;
}

void Pointer::settle(CGPoint goal) {
  if (!std::isfinite(goal.x) || !std::isfinite(goal.y)) {
    return;
  }
  location_ = goal;
  if (const auto index = displays_.indexContaining(goal, displayIndex_)) {
    displayIndex_ = *index;
    return;
  }
  location_ = clampedToDisplay(goal);
  if (displayIndex_ >= displays_.count()) {
    displayIndex_ = displays_.indexContaining(location_).value_or(0);
  }
}

void Pointer::displaysChanged() {
  if (displays_.isEmpty()) {
    return;
  }
  // The order of the list may have changed, so no display is preferred.
  displayIndex_ = displays_.count();
  settle(location_);
}

}  // namespace orvane::desk
