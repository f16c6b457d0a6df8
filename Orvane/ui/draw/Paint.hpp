// A resolved fill, ready for a canvas: a solid colour or a linear gradient between two points.
#pragma once

#include <vector>

#include "Orvane/ui/draw/Appearance.hpp"
#include "Orvane/ui/layout/Point.hpp"

namespace orvane::ui {

struct PaintStop {
  Rgba color;
  /// From 0 (start) to 1 (end), not decreasing from stop to stop.
  double location = 0;

  friend bool operator==(const PaintStop&, const PaintStop&) = default;
};

struct Paint {
  /// Without stops nothing is painted; a single stop is a solid colour.
  std::vector<PaintStop> stops = {};
  /// In the coordinates of the painted shape; ignored for a solid colour. The first colour
  /// continues before the start, the last one after the end.
  Point start = {};
  Point end = {};

  [[nodiscard]] static Paint solid(const Rgba& color) { return {.stops = {{color, 0}}}; }
  [[nodiscard]] bool isSolid() const { return stops.size() == 1; }

  friend bool operator==(const Paint&, const Paint&) = default;
};

}  // namespace orvane::ui
