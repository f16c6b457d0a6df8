// Colours and patterns of gradients.
#include "desk/canvas/Gradients.hpp"

#include <algorithm>
#include <cmath>

namespace orvane::desk {

PatternPointer gradientOf(const ui::Paint& paint) {
  PatternPointer pattern(
      cairo_pattern_create_linear(paint.start.x, paint.start.y, paint.end.x, paint.end.y));
  for (const ui::PaintStop& stop : paint.stops) {
    cairo_pattern_add_color_stop_rgba(pattern.get(), stop.location, stop.color.red,
                                      stop.color.green, stop.color.blue, stop.color.alpha);
  }
  return pattern;
}

bool isOneColor(const ui::Paint& paint) {
  return paint.isSolid() || paint.start == paint.end;
}

ui::Rgba colorAt(const ui::Paint& paint, double fraction) {
  const auto next = std::ranges::find_if(
      paint.stops, [&](const ui::PaintStop& stop) { return stop.location > fraction; });
  if (next == paint.stops.begin()) {
    return next->color;
  }
  const ui::PaintStop& from = *(next - 1);
  if (next == paint.stops.end()) {
    return from.color;
  }
  const double part = (fraction - from.location) / (next->location - from.location);
  return {std::lerp(from.color.red, next->color.red, part),
          std::lerp(from.color.green, next->color.green, part),
          std::lerp(from.color.blue, next->color.blue, part),
          std::lerp(from.color.alpha, next->color.alpha, part)};
}

bool runsDown(const ui::Paint& paint) {
  return !paint.isSolid() && paint.start.x == paint.end.x && paint.start.y != paint.end.y;
}

}  // namespace orvane::desk
