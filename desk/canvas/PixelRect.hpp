// PixelRect is a rectangle of whole pixels.
#pragma once

#include <algorithm>
#include <cmath>

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::desk {

/// Pixels from `left`, `top` to `right`, `bottom` (exclusive).
struct PixelRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  /// The pixels that a rectangle touches.
  [[nodiscard]] static PixelRect around(const ui::Rect& pixels) {
    return {static_cast<int>(std::floor(pixels.x)), static_cast<int>(std::floor(pixels.y)),
            static_cast<int>(std::ceil(pixels.right())),
            static_cast<int>(std::ceil(pixels.bottom()))};
  }
  [[nodiscard]] bool isEmpty() const { return left >= right || top >= bottom; }
  [[nodiscard]] PixelRect cutTo(const PixelRect& other) const {
    return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
            std::min(bottom, other.bottom)};
  }
};

}  // namespace orvane::desk
