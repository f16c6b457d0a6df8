// A slow, obviously correct computation of where a display's Dock edge is exposed.
#include "tests/geometry/EdgeOracle.hpp"

#include <algorithm>

namespace orvane::oracle {

namespace {

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

}  // namespace

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

std::vector<EdgeInterval> exposedStretches(const CGRect& frame, DockPosition edge,
                                           std::span<const CGRect> allFrames, double cell) {
  const CGRect own = turned(frame, edge);
  std::vector<EdgeInterval> stretches = stretchesWhere(
      own.origin.x, farX(own), cell,
      [&](double along) { return !hasNeighbourBehind(frame, edge, along, allFrames); });
  std::erase_if(stretches, [](const EdgeInterval& stretch) {
    return stretch.end - stretch.start <= shortestThatCounts;
  });
  return stretches;
}

}  // namespace orvane::oracle
