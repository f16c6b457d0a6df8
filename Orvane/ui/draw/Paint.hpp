// A resolved fill, ready for a canvas: a solid colour or a linear gradient between two points.
#pragma once

#include <vector>

#include "Orvane/ui/draw/Appearance.hpp"
#include "Orvane/ui/layout/Point.hpp"

namespace orvane::ui {

struct PaintStop {
  Rgba color;
  // From 0 (start) to 1 (end), not decreasing from stop to stop.
  double location = 0;

  friend bool operator==(const PaintStop&, const PaintStop&) = default;
};

struct Paint {
  // No stop paints nothing; one stop is a solid colour, and start and end are then without meaning.
  std::vector<PaintStop> stops;
  // In the coordinates of the shape that is painted. Before the start and after the end the first
  // and last colours continue.
  Point start;
  Point end;

  static Paint solid(const Rgba& color) { return {{{color, 0}}, {}, {}}; }
  bool isSolid() const { return stops.size() == 1; }

  friend bool operator==(const Paint&, const Paint&) = default;
};

}  // namespace orvane::ui
