// Computes the trigger zones from the display frames and the Dock's edge. Pure functions.
#include "Orvane/geometry/OrvaneGeometry.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvane::OrvaneGeometry {

namespace {

bool isVertical(DockPosition dockPosition) {
  return dockPosition == DockPosition::left || dockPosition == DockPosition::right;
}

/// The frame's extent along the Dock edge.
EdgeInterval rangeAlongEdge(CGRect frame, DockPosition dockPosition) {
  return isVertical(dockPosition) ? EdgeInterval{CGRectGetMinY(frame), CGRectGetMaxY(frame)}
                                  : EdgeInterval{CGRectGetMinX(frame), CGRectGetMaxX(frame)};
}

/// The coordinate of the frame's own Dock edge.
double edgeLine(CGRect frame, DockPosition dockPosition) {
  switch (dockPosition) {
    case DockPosition::left:
      return CGRectGetMinX(frame);
    case DockPosition::right:
      return CGRectGetMaxX(frame);
    default:
      return CGRectGetMaxY(frame);
  }
}

/// The coordinate of the neighbour's edge that faces the Dock edge.
double facingEdge(CGRect neighbour, DockPosition dockPosition) {
  switch (dockPosition) {
    case DockPosition::left:
      return CGRectGetMaxX(neighbour);
    case DockPosition::right:
      return CGRectGetMinX(neighbour);
    default:
      return CGRectGetMinY(neighbour);
  }
}

TriggerZone zoneAlong(EdgeInterval interval, CGRect frame, DockPosition dockPosition) {
  const double length = interval.end - interval.start;
  switch (dockPosition) {
    case DockPosition::left:
      return {CGRectMake(CGRectGetMinX(frame), interval.start, zoneThickness, length),
              CGVectorMake(zoneThickness, 0)};
    case DockPosition::right:
      return {
          CGRectMake(CGRectGetMaxX(frame) - zoneThickness, interval.start, zoneThickness, length),
          CGVectorMake(-zoneThickness, 0)};
    default:
      return {
          CGRectMake(interval.start, CGRectGetMaxY(frame) - zoneThickness, length, zoneThickness),
          CGVectorMake(0, -zoneThickness)};
  }
}

bool producesZones(DockPosition dockPosition) {
  return dockPosition == DockPosition::bottom || isVertical(dockPosition);
}

}  // namespace

std::vector<EdgeInterval> exposedIntervals(CGRect frame, DockPosition dockPosition,
                                           std::span<const CGRect> allFrames) {
  const double line = edgeLine(frame, dockPosition);
  const EdgeInterval range = rangeAlongEdge(frame, dockPosition);
  std::vector<EdgeInterval> covered;
  for (const CGRect& other : allFrames) {
    if (CGRectEqualToRect(other, frame) ||
        !(std::abs(facingEdge(other, dockPosition) - line) <= neighbourTolerance)) {
      continue;
    }
    const EdgeInterval along = rangeAlongEdge(other, dockPosition);
    const EdgeInterval shared{std::max(along.start, range.start), std::min(along.end, range.end)};
    if (shared.end - shared.start > EdgeInterval::minimumLength) {
      covered.push_back(shared);
    }
  }
  return EdgeInterval::subtract(range, std::move(covered));
}

std::vector<TriggerZone> calculateTriggerZones(std::span<const CGRect> screenFrames,
                                               const std::set<std::size_t>& blockedScreenIndices,
                                               DockPosition dockPosition) {
  std::vector<TriggerZone> zones;
  if (!producesZones(dockPosition)) {
    return zones;
  }
  for (const std::size_t index : blockedScreenIndices) {
    if (index >= screenFrames.size()) {
      break;
    }
    const CGRect frame = screenFrames[index];
    for (const EdgeInterval& interval : exposedIntervals(frame, dockPosition, screenFrames)) {
      zones.push_back(zoneAlong(interval, frame, dockPosition));
    }
  }
  return zones;
}

std::vector<TriggerZone> calculateTriggerZones(std::span<const CGRect> screenFrames,
                                               std::size_t lockedScreenIndex,
                                               DockPosition dockPosition) {
  if (screenFrames.size() < 2 || lockedScreenIndex >= screenFrames.size()) {
    return {};
  }
  std::set<std::size_t> blocked;
  for (std::size_t index = 0; index < screenFrames.size(); ++index) {
    if (index != lockedScreenIndex) {
      blocked.insert(index);
    }
  }
  return calculateTriggerZones(screenFrames, blocked, dockPosition);
}

}  // namespace orvane::OrvaneGeometry
