// A shadow: semantic, and resolved for a canvas.
#pragma once

#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/layout/Point.hpp"

namespace orvane::ui {

// The blur is a Gaussian whose standard deviation is half the radius; the offset is in points.
struct Shadow {
  Color color = Color::black().opacity(0.33);
  double radius = 0;
  double x = 0;
  double y = 0;

  friend bool operator==(const Shadow&, const Shadow&) = default;
};

struct PaintShadow {
  Rgba color;
  double radius = 0;
  Point offset;

  friend bool operator==(const PaintShadow&, const PaintShadow&) = default;
};

}  // namespace orvane::ui
