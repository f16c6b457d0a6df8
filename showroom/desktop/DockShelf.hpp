// DockShelf is the geometry of the Dock: the shelf and its tiles, at any edge and stage of a slide.
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
  /// The applications' tiles in order along the edge, then the bin's.
  std::vector<ui::Rect> tiles;
  /// For each tile, the dot between it and the edge that marks a running application.
  std::vector<ui::Rect> dots;
  /// The line between the applications and the bin.
  ui::Rect separator;
  /// The scale of all lengths; less than 1 if the edge is too short for the full size.
  double factor = 1;

  /// `area` is the frame of the fully shown Dock; `shownFraction` runs from 0, hidden behind the
  /// edge, to 1.
  static DockShelf make(const ui::Rect& area, desk::DockEdge edge, double shownFraction,
                        std::size_t tileCount);
};

}  // namespace orvane::showroom
