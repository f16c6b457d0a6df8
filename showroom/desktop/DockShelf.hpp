// The Dock's shape: the shelf and its tiles, for any edge and any moment of its slide.
#pragma once

#include <cstddef>
#include <vector>

#include "Orvane/ui/layout/Rect.hpp"
#include "desk/machine/DockEdge.hpp"

namespace orvane::showroom {

/// All rectangles are in global coordinates.
struct DockShelf {
  ui::Rect shelf;
  double cornerRadius = 0;
  /// The applications' tiles in order along the edge, then the bin.
  std::vector<ui::Rect> tiles;
  /// The line between the applications and the bin.
  ui::Rect separator;
  /// 1 when everything has its full size; less where the edge is too short for that.
  double factor = 1;

  /// `area` is the Dock's frame when it is all the way up; `shownFraction` runs from 0, out of
  /// sight behind the edge, to 1.
  static DockShelf make(const ui::Rect& area, desk::DockEdge edge, double shownFraction,
                        std::size_t tileCount);
};

}  // namespace orvane::showroom
