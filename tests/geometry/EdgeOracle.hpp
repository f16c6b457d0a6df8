// A slow, obviously correct computation of where a display's Dock edge is exposed: it walks along
// the edge cell by cell and checks what is behind the middle of each.
#pragma once

#include <span>
#include <vector>

#include "Orvane/geometry/DockPosition.hpp"
#include "Orvane/geometry/EdgeInterval.hpp"
#include "Orvane/platform/Quartz.hpp"

namespace orvane::oracle {

/// The longest stretches of [from, to] in which `holds` is true for the middle of every cell.
/// `holds` may change only at multiples of `cell`.
template <typename Predicate>
std::vector<EdgeInterval> stretchesWhere(double from, double to, double cell, Predicate holds) {
  std::vector<EdgeInterval> found;
  bool inside = false;
  for (long index = 0; from + static_cast<double>(index) * cell < to; ++index) {
    const double start = from + static_cast<double>(index) * cell;
    if (!holds(start + cell / 2)) {
      inside = false;
      continue;
    }
    if (!inside) {
      found.push_back({start, start});
    }
    inside = true;
    found.back().end = start + cell;
  }
  return found;
}

/// Whether a display other than `frame` lies directly behind its Dock edge at `along`.
[[nodiscard]] bool hasNeighbourBehind(const CGRect& frame, DockPosition edge, double along,
                                      std::span<const CGRect> allFrames);

/// The stretches of the Dock edge, longer than half a point, without a neighbour behind them. All
/// frames must lie on multiples of `cell`, in global coordinates.
[[nodiscard]] std::vector<EdgeInterval> exposedStretches(const CGRect& frame, DockPosition edge,
                                                         std::span<const CGRect> allFrames,
                                                         double cell);

}  // namespace orvane::oracle
