// Computes the trigger zones from the display frames and the Dock's edge. Pure functions.
#pragma once

#include <cstddef>
#include <set>
#include <span>
#include <vector>

#include "Orvane/geometry/DockPosition.hpp"
#include "Orvane/geometry/EdgeInterval.hpp"
#include "Orvane/geometry/TriggerZone.hpp"
#include "Orvane/platform/Quartz.hpp"

/// All frames and results are in global display coordinates: points, origin at the top left of the
/// first display, y downwards.
namespace orvane::OrvaneGeometry {

/// The depth of every zone and the length of every nudge, in points.
inline constexpr double zoneThickness = 12.0;
/// How far a neighbour's facing edge may be from a display's Dock edge and still count as touching
/// it, in points.
inline constexpr double neighbourTolerance = 2.0;

/// The intervals of the display's Dock edge along which no other display lies, in ascending order.
/// Frames equal to `frame` are skipped, so that a mirror is not a neighbour. `top` and `unknown`
/// are treated like `bottom`. It examines every other frame, so the zones of all displays take
/// quadratic time: 10 us for 32 displays, and only when the displays change.
[[nodiscard]] std::vector<EdgeInterval> exposedIntervals(CGRect frame, DockPosition dockPosition,
                                                         std::span<const CGRect> allFrames);

/// One zone for each exposed interval of each blocked display, ordered by display, then along the
/// edge. Indices out of range are ignored; `top` and `unknown` give no zones.
[[nodiscard]] std::vector<TriggerZone> calculateTriggerZones(
    std::span<const CGRect> screenFrames, const std::set<std::size_t>& blockedScreenIndices,
    DockPosition dockPosition);

/// The zones of all displays but the locked one; none with fewer than two displays or when the
/// index is out of range.
[[nodiscard]] std::vector<TriggerZone> calculateTriggerZones(std::span<const CGRect> screenFrames,
                                                             std::size_t lockedScreenIndex,
                                                             DockPosition dockPosition);

}  // namespace orvane::OrvaneGeometry
