// A place inside a rectangle as a share of its width and height; also the nine alignments.
#pragma once

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

struct UnitPoint {
  double x = 0.5;
  double y = 0.5;

  static constexpr UnitPoint topLeading() { return {0, 0}; }
  static constexpr UnitPoint top() { return {0.5, 0}; }
  static constexpr UnitPoint topTrailing() { return {1, 0}; }
  static constexpr UnitPoint leading() { return {0, 0.5}; }
  static constexpr UnitPoint center() { return {0.5, 0.5}; }
  static constexpr UnitPoint trailing() { return {1, 0.5}; }
  static constexpr UnitPoint bottom() { return {0.5, 1}; }
  static constexpr UnitPoint bottomTrailing() { return {1, 1}; }

  // The point of the rectangle that this share names.
  Point in(const Rect& rect) const { return {rect.x + rect.width * x, rect.y + rect.height * y}; }
  // Where the top left corner of something goes so that it is aligned inside the container.
  Point originOf(Size inner, Size container) const {
    return {(container.width - inner.width) * x, (container.height - inner.height) * y};
  }

  friend bool operator==(const UnitPoint&, const UnitPoint&) = default;
};

// How a view is placed in a frame that is larger or smaller than it.
using Alignment = UnitPoint;

}  // namespace orvane::ui
