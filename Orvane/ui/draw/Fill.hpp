// The fill of a shape, one colour or a linear gradient: semantic, and resolved for a canvas.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <vector>

#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

struct FillStop {
  Color color;
  /// From 0 (start) to 1 (end).
  double location = 0;
};

/// A linear gradient between two points of the rectangle that it fills, with any number of stops.
struct Fill {
  std::vector<FillStop> stops;
  UnitPoint start = UnitPoint::top();
  UnitPoint end = UnitPoint::bottom();

  /// One colour: a single stop.
  Fill(const Color& color) : stops{{color, 0}} {}  // NOLINT: meant to convert
  /// Evenly spaced colours.
  [[nodiscard]] static Fill gradient(std::initializer_list<Color> colors,
                                     UnitPoint start = UnitPoint::top(),
                                     UnitPoint end = UnitPoint::bottom()) {
    Fill result;
    result.start = start;
    result.end = end;
    const double steps = std::max(1.0, static_cast<double>(colors.size()) - 1);
    for (const Color& color : colors) {
      result.stops.push_back({color, static_cast<double>(result.stops.size()) / steps});
    }
    return result;
  }
  /// The system's gradient of one colour, slightly lighter at the top.
  [[nodiscard]] static Fill systemGradient(const Color& color) {
    return gradient({color.lighter(Color::gradientLight), color});
  }

  [[nodiscard]] Fill opacity(double factor) const {
    Fill result = *this;
    for (FillStop& stop : result.stops) {
      stop.color = stop.color.opacity(factor);
    }
    return result;
  }

 private:
  Fill() = default;
};

struct PaintStop {
  Rgba color;
  /// From 0 (start) to 1 (end), not decreasing from stop to stop.
  double location = 0;
};

/// A resolved fill.
struct Paint {
  /// Without stops nothing is painted; a single stop is a solid colour.
  std::vector<PaintStop> stops = {};
  /// In the coordinates of the painted shape; ignored for a solid colour. The first colour
  /// continues before the start, the last one after the end.
  Point start = {};
  Point end = {};

  [[nodiscard]] static Paint solid(const Rgba& color) { return {.stops = {{color, 0}}}; }
  [[nodiscard]] bool isSolid() const { return stops.size() == 1; }
};

}  // namespace orvane::ui
