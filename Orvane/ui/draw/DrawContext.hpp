// The arguments of an element's drawing function.
#pragma once

#include <cmath>

#include "Orvane/ui/draw/Canvas.hpp"

namespace orvane::ui {

struct DrawContext {
  Canvas& canvas;
  /// In seconds of the host's time.
  double now;
  /// The element's rectangle on the canvas.
  Rect rect;
  /// False while the view moves or is scaled, when snapping would make it tremble.
  bool snapsToPixels;

  [[nodiscard]] double snapped(double position) const {
    const double scale = canvas.scaleFactor();
    return snapsToPixels && scale > 0 ? std::round(position * scale) / scale : position;
  }
  [[nodiscard]] Point snapped(Point point) const { return {snapped(point.x), snapped(point.y)}; }
  /// Both edges on whole pixels.
  [[nodiscard]] Rect snapped(const Rect& area) const {
    return Rect::between(snapped(area.x), snapped(area.y), snapped(area.right()),
                         snapped(area.bottom()));
  }
};

}  // namespace orvane::ui
