// A strip along a display's Dock edge in which the pointer would summon the Dock.
#pragma once

#include "Orvane/platform/Quartz.hpp"

namespace orvane {

/// Global display coordinates: points, origin at the top left of the first display, y downwards.
struct TriggerZone {
  /// The area in which a pointer event counts as a Dock trigger.
  CGRect rect{};
  /// The displacement that moves a pointer out of the area, into the display.
  CGVector nudgeVector{};

  friend bool operator==(const TriggerZone& first, const TriggerZone& second) {
    return first.rect.origin.x == second.rect.origin.x &&
           first.rect.origin.y == second.rect.origin.y &&
           first.rect.size.width == second.rect.size.width &&
           first.rect.size.height == second.rect.size.height &&
           first.nudgeVector.dx == second.nudgeVector.dx &&
           first.nudgeVector.dy == second.nudgeVector.dy;
  }
};

}  // namespace orvane
