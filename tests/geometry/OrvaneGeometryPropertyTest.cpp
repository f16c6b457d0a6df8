// Intervals of an edge, exposed intervals and zones on random arrangements of displays: side by
// side, overlapping, with small gaps, mirrored, at negative and fractional coordinates. They are
// compared with a slow, obviously correct oracle, which walks along the edge cell by cell and
// checks what is behind the middle of each.
#include <algorithm>
#include <cstddef>
#include <iomanip>
#include <ostream>
#include <set>
#include <span>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/geometry/DockPosition.hpp"
#include "Orvane/geometry/EdgeInterval.hpp"
#include "Orvane/geometry/OrvaneGeometry.hpp"
#include "tests/support/GeometryPrinting.hpp"

namespace orvane {
namespace {

using OrvaneGeometry::calculateTriggerZones;
using OrvaneGeometry::exposedIntervals;
using Indices = std::set<std::size_t>;

/// All coordinates of an arrangement are multiples of this, in points: sums of them are exact.
constexpr double arrangementCell = 1.0 / 16;

/// Frames in global coordinates.
struct Arrangement {
  std::vector<CGRect> frames;
};

std::ostream& operator<<(std::ostream& out, const Arrangement& arrangement) {
  out << std::setprecision(10);
  for (const CGRect& frame : arrangement.frames) {
    out << "[x " << frame.origin.x << " y " << frame.origin.y << " w " << frame.size.width << " h "
        << frame.size.height << "] ";
  }
  return out;
}

/// The position of a display: beside an earlier one, mirroring it, or anywhere. Lengths are in
/// cells.
struct Placement {
  enum class Kind { below, above, rightOf, leftOf, mirror, anywhere };
  Kind kind;
  int anchor;
  int gap;
  int slide;
  int width;
  int height;
};

CGRect placed(const Placement& placement, const std::vector<CGRect>& earlier) {
  const auto points = [](int cells) { return cells * arrangementCell; };
  const CGSize size{points(placement.width), points(placement.height)};
  const double slide = points(placement.slide);
  if (earlier.empty()) {
    return {{slide, points(placement.gap)}, size};
  }
  const CGRect& anchor = earlier[static_cast<std::size_t>(placement.anchor) % earlier.size()];
  const double gap = points(placement.gap);
  switch (placement.kind) {
    case Placement::Kind::below:
      return {{anchor.origin.x + slide, anchor.origin.y + anchor.size.height + gap}, size};
    case Placement::Kind::above:
      return {{anchor.origin.x + slide, anchor.origin.y - size.height - gap}, size};
    case Placement::Kind::rightOf:
      return {{anchor.origin.x + anchor.size.width + gap, anchor.origin.y + slide}, size};
    case Placement::Kind::leftOf:
      return {{anchor.origin.x - size.width - gap, anchor.origin.y + slide}, size};
    case Placement::Kind::mirror:
      return anchor;
    case Placement::Kind::anywhere:
      break;
  }
  return {{anchor.origin.x + slide, anchor.origin.y + points(placement.gap * 16)}, size};
}

/// Up to six displays of 1 to 60 points; small, so that every cell of every edge can be examined.
rc::Gen<Arrangement> genArrangement() {
  namespace gen = rc::gen;
  using Kind = Placement::Kind;
  // The critical gaps: around half a point and around two points, positive and negative.
  const auto gap =
      gen::oneOf(gen::just(0), gen::element(6, 7, 8, 9, 10, 30, 31, 32, 33, 34, 40, 42),
                 gen::element(-7, -8, -9, -31, -32, -33, -40), gen::inRange(-48, 49));
  const auto slide =
      gen::oneOf(gen::just(0), gen::element(-10, -9, -8, -7, 7, 8, 9, 10), gen::inRange(-960, 961));
  const auto size = gen::oneOf(gen::element(160, 320), gen::inRange(16, 961));
  const auto placement = gen::construct<Placement>(
      gen::element(Kind::below, Kind::below, Kind::rightOf, Kind::rightOf, Kind::leftOf,
                   Kind::above, Kind::mirror, Kind::anywhere),
      gen::inRange(0, 6), gap, slide, size, size);
  return gen::map(gen::mapcat(gen::inRange<std::size_t>(1, 7),
                              [placement](std::size_t count) {
                                return gen::container<std::vector<Placement>>(count, placement);
                              }),
                  [](const std::vector<Placement>& placements) {
                    Arrangement arrangement;
                    for (const Placement& one : placements) {
                      arrangement.frames.push_back(placed(one, arrangement.frames));
                    }
                    return arrangement;
                  });
}

rc::Gen<DockPosition> genGuardedEdge() {
  return rc::gen::element(DockPosition::bottom, DockPosition::left, DockPosition::right);
}

// The oracle.

/// The longest stretches of [from, to] in which `holds` is true for the middle of every cell.
/// `holds` may change only at multiples of a cell.
template <typename Predicate>
std::vector<EdgeInterval> stretchesWhere(double from, double to, Predicate holds) {
  std::vector<EdgeInterval> found;
  bool inside = false;
  for (long index = 0; from + static_cast<double>(index) * arrangementCell < to; ++index) {
    const double start = from + static_cast<double>(index) * arrangementCell;
    if (!holds(start + arrangementCell / 2)) {
      inside = false;
      continue;
    }
    if (!inside) {
      found.push_back({start, start});
    }
    inside = true;
    found.back().end = start + arrangementCell;
  }
  return found;
}

// Repeated here, because the oracle must not share the constants that it checks.
constexpr double touchingDistance = 2.0;
constexpr double shortestThatCounts = 0.5;

bool isSameFrame(const CGRect& first, const CGRect& second) {
  return first.origin.x == second.origin.x && first.origin.y == second.origin.y &&
         first.size.width == second.size.width && first.size.height == second.size.height;
}

/// The frame rotated so that its Dock edge is at the bottom: x runs along the edge and y towards
/// it.
CGRect turned(const CGRect& frame, DockPosition edge) {
  const CGRect swapped{{frame.origin.y, frame.origin.x}, {frame.size.height, frame.size.width}};
  switch (edge) {
    case DockPosition::right:
      return swapped;
    case DockPosition::left:
      return {{swapped.origin.x, -(swapped.origin.y + swapped.size.height)}, swapped.size};
    default:
      return frame;
  }
}

double farX(const CGRect& frame) {
  return frame.origin.x + frame.size.width;
}

/// Whether a display other than `frame` lies directly behind its Dock edge at `along`.
bool hasNeighbourBehind(const CGRect& frame, DockPosition edge, double along,
                        std::span<const CGRect> allFrames) {
  const CGRect own = turned(frame, edge);
  const double line = own.origin.y + own.size.height;
  return std::ranges::any_of(allFrames, [&](const CGRect& candidate) {
    if (isSameFrame(candidate, frame)) {
      return false;
    }
    const CGRect other = turned(candidate, edge);
    const bool touches =
        other.origin.y >= line - touchingDistance && other.origin.y <= line + touchingDistance;
    const double sharedLength =
        std::min(farX(own), farX(other)) - std::max(own.origin.x, other.origin.x);
    return touches && sharedLength > shortestThatCounts && along > other.origin.x &&
           along < farX(other);
  });
}

/// The stretches of the Dock edge, longer than half a point, without a neighbour behind them. All
/// frames must lie on multiples of a cell, in global coordinates.
std::vector<EdgeInterval> exposedStretches(const CGRect& frame, DockPosition edge,
                                           std::span<const CGRect> allFrames) {
  const CGRect own = turned(frame, edge);
  std::vector<EdgeInterval> stretches = stretchesWhere(own.origin.x, farX(own), [&](double along) {
    return !hasNeighbourBehind(frame, edge, along, allFrames);
  });
  std::erase_if(stretches, [](const EdgeInterval& stretch) {
    return stretch.end - stretch.start <= shortestThatCounts;
  });
  return stretches;
}

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
  const std::vector<EdgeInterval> stretches = exposedStretches(frame, edge, frames);
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
              exposedStretches(frame, edge, arrangement.frames));
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

// The intervals themselves.

using Intervals = std::vector<EdgeInterval>;

rc::Gen<EdgeInterval> genInterval() {
  const auto start = rc::gen::inRange(-400, 400);
  const auto length = rc::gen::oneOf(rc::gen::inRange(1, 12), rc::gen::inRange(1, 200));
  return rc::gen::apply(
      [](int startCells, int cells) {
        return EdgeInterval{startCells * arrangementCell, (startCells + cells) * arrangementCell};
      },
      start, length);
}

rc::Gen<Intervals> genIntervals() {
  return rc::gen::scale(0.2, rc::gen::container<Intervals>(genInterval()));
}

bool isWithin(double place, const Intervals& intervals) {
  return std::ranges::any_of(intervals, [place](const EdgeInterval& interval) {
    return place > interval.start && place < interval.end;
  });
}

/// The cells that the intervals cover, with the gaps of at most half a point between them.
Intervals mergedOnTheGrid(const Intervals& intervals) {
  Intervals merged;
  for (const auto& [start, end] :
       stretchesWhere(-30, 40, [&](double place) { return isWithin(place, intervals); })) {
    if (!merged.empty() && start - merged.back().end <= 0.5) {
      merged.back().end = end;
    } else {
      merged.push_back({start, end});
    }
  }
  return merged;
}

RC_GTEST_PROP(EdgeIntervalProperty, MergingAgreesWithExaminingEveryCell, ()) {
  const Intervals intervals = *genIntervals();
  RC_ASSERT(EdgeInterval::merge(intervals) == mergedOnTheGrid(intervals));
}

RC_GTEST_PROP(EdgeIntervalProperty, SubtractingAgreesWithExaminingEveryCell, ()) {
  const EdgeInterval whole = *genInterval();
  const Intervals removed = *genIntervals();
  Intervals expected = stretchesWhere(whole.start, whole.end,
                                      [&](double place) { return !isWithin(place, removed); });
  std::erase_if(expected, [](const EdgeInterval& piece) { return piece.end - piece.start <= 0.5; });
  RC_ASSERT(EdgeInterval::subtract(whole, removed) == expected);
}

}  // namespace
}  // namespace orvane
