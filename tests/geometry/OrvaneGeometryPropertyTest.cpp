// Exposed intervals and zones on random arrangements of displays, compared with a slow, obviously
// correct oracle, and under rotation and reflection of the arrangement.
#include <algorithm>
#include <cstddef>
#include <set>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/geometry/OrvaneGeometry.hpp"
#include "tests/geometry/ArrangementGenerator.hpp"
#include "tests/geometry/EdgeOracle.hpp"
#include "tests/support/GeometryPrinting.hpp"

namespace orvane {
namespace {

using OrvaneGeometry::calculateTriggerZones;
using OrvaneGeometry::exposedIntervals;
using Indices = std::set<std::size_t>;

Indices everyIndex(const Arrangement& arrangement) {
  Indices indices;
  for (std::size_t index = 0; index < arrangement.frames.size(); ++index) {
    indices.insert(index);
  }
  return indices;
}

bool hasPoint(const CGRect& rect, CGPoint point) {
  return point.x >= rect.origin.x && point.x < rect.origin.x + rect.size.width &&
         point.y >= rect.origin.y && point.y < rect.origin.y + rect.size.height;
}

/// The distance of a point from the display's Dock edge, inwards.
double depthFrom(DockPosition edge, const CGRect& frame, CGPoint point) {
  switch (edge) {
    case DockPosition::left:
      return point.x - frame.origin.x;
    case DockPosition::right:
      return frame.origin.x + frame.size.width - point.x;
    default:
      return frame.origin.y + frame.size.height - point.y;
  }
}

/// Whether the point is less than twelve points inside an exposed part of the display's Dock edge.
bool isGuarded(CGPoint point, const CGRect& frame, DockPosition edge,
               const std::vector<CGRect>& frames) {
  const double depth = depthFrom(edge, frame, point);
  const double along = edge == DockPosition::bottom ? point.x : point.y;
  const std::vector<EdgeInterval> stretches =
      oracle::exposedStretches(frame, edge, frames, arrangementCell);
  return depth > 0 && depth < 12 &&
         std::ranges::any_of(stretches, [along](const EdgeInterval& stretch) {
           return along > stretch.start && along < stretch.end;
         });
}

RC_GTEST_PROP(OrvaneGeometryProperty, ExposedStretchesAgreeWithExaminingEveryCellOfTheEdge, ()) {
  const Arrangement arrangement = *genArrangement();
  const DockPosition edge = *genGuardedEdge();
  for (const CGRect& frame : arrangement.frames) {
    RC_ASSERT(exposedIntervals(frame, edge, arrangement.frames) ==
              oracle::exposedStretches(frame, edge, arrangement.frames, arrangementCell));
  }
}

RC_GTEST_PROP(OrvaneGeometryProperty, APointIsInAZoneExactlyWhenItIsBehindAnExposedPlace, ()) {
  const Arrangement arrangement = *genArrangement();
  const DockPosition edge = *genGuardedEdge();
  const std::vector<CGRect>& frames = arrangement.frames;
  Indices blocked = everyIndex(arrangement);
  blocked.erase(*rc::gen::inRange<std::size_t>(0, 7));
  const std::vector<TriggerZone> zones = calculateTriggerZones(frames, blocked, edge);
  // Points in the middle of a cell, in and around one of the displays.
  const CGRect& near = frames[*rc::gen::inRange<std::size_t>(0, frames.size())];
  for (int count = 0; count < 20; ++count) {
    const auto place = [](double from, double length) {
      const int cells = static_cast<int>(length / arrangementCell);
      return from + (*rc::gen::inRange(-32, cells + 32) + 0.5) * arrangementCell;
    };
    const CGPoint point{place(near.origin.x, near.size.width),
                        place(near.origin.y, near.size.height)};
    const bool isInZone = std::ranges::any_of(
        zones, [&](const TriggerZone& zone) { return hasPoint(zone.rect, point); });
    const bool expected = std::ranges::any_of(blocked, [&](std::size_t index) {
      return index < frames.size() && isGuarded(point, frames[index], edge, frames);
    });
    RC_ASSERT(isInZone == expected);
  }
}

RC_GTEST_PROP(OrvaneGeometryProperty, LockingOneDisplayBlocksAllTheOthers, ()) {
  const Arrangement arrangement = *genArrangement();
  const DockPosition edge = *genGuardedEdge();
  const std::size_t locked = *rc::gen::inRange<std::size_t>(0, 8);
  Indices others = everyIndex(arrangement);
  const bool isLocking = others.size() >= 2 && others.erase(locked) == 1;
  RC_ASSERT(calculateTriggerZones(arrangement.frames, locked, edge) ==
            (isLocking ? calculateTriggerZones(arrangement.frames, others, edge)
                       : std::vector<TriggerZone>{}));
}

}  // namespace
}  // namespace orvane
