// A shadow: semantic, and resolved for a canvas.
#pragma once

#include <algorithm>

#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

/// A Gaussian blur whose standard deviation is half the radius. Lengths are in points.
struct Shadow {
  Color color = Color::black().opacity(0.33);
  double radius = 0;
  double x = 0;
  double y = 0;
};

struct PaintShadow {
  Rgba color;
  double radius = 0;
  Point offset;

  /// The distances by which the shadow exceeds what casts it, in points.
  [[nodiscard]] Edges reach() const {
    // Three standard deviations, and a pixel for rounding.
    const double blur = 1.5 * radius + 1;
    return {std::max(0.0, blur - offset.y), std::max(0.0, blur - offset.x),
            std::max(0.0, blur + offset.y), std::max(0.0, blur + offset.x)};
  }
};

}  // namespace orvane::ui
