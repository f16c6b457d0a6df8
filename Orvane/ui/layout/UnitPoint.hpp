// A point in a rectangle as fractions of its width and height, and the alignments.
#pragma once

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

struct UnitPoint {
  double x = 0.5;
  double y = 0.5;

  [[nodiscard]] static constexpr UnitPoint topLeading() { return {0, 0}; }
  [[nodiscard]] static constexpr UnitPoint top() { return {0.5, 0}; }
  [[nodiscard]] static constexpr UnitPoint topTrailing() { return {1, 0}; }
  [[nodiscard]] static constexpr UnitPoint leading() { return {0, 0.5}; }
  [[nodiscard]] static constexpr UnitPoint center() { return {0.5, 0.5}; }
  [[nodiscard]] static constexpr UnitPoint trailing() { return {1, 0.5}; }
  [[nodiscard]] static constexpr UnitPoint bottom() { return {0.5, 1}; }
  [[nodiscard]] static constexpr UnitPoint bottomTrailing() { return {1, 1}; }

  [[nodiscard]] Point in(const Rect& rect) const {
    return {rect.x + rect.width * x, rect.y + rect.height * y};
  }
  /// The top left corner of content with this alignment, in the container's coordinates.
  [[nodiscard]] Point originOf(Size content, Size container) const {
    return {(container.width - content.width) * x, (container.height - content.height) * y};
  }

  friend bool operator==(const UnitPoint&, const UnitPoint&) = default;
};

/// The position of a view in a frame that is larger or smaller than the view.
using Alignment = UnitPoint;

}  // namespace orvane::ui
