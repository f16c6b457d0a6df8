// Prints the geometry's values in test reports.
#pragma once

#include <iomanip>
#include <ostream>

#include "Orvane/geometry/EdgeInterval.hpp"
#include "Orvane/geometry/TriggerZone.hpp"
#include "Orvane/platform/Quartz.hpp"

namespace orvane {

inline std::ostream& operator<<(std::ostream& out, const EdgeInterval& interval) {
  return out << std::setprecision(10) << "[" << interval.start << ", " << interval.end << "]";
}

inline std::ostream& operator<<(std::ostream& out, const TriggerZone& zone) {
  const CGRect& rect = zone.rect;
  return out << std::setprecision(10) << "zone (" << rect.origin.x << ", " << rect.origin.y << ", "
             << rect.size.width << ", " << rect.size.height << ") nudge (" << zone.nudgeVector.dx
             << ", " << zone.nudgeVector.dy << ")";
}

}  // namespace orvane
