// What an element draws with: the canvas, the moment, and where its rectangle is on the canvas.
#pragma once

#include <cmath>

#include "Orvane/ui/draw/Canvas.hpp"

namespace orvane::ui {

struct DrawContext {
  Canvas& canvas;
  double now;
  Rect rect;
  // False while the view moves or is scaled: then whole pixels would make it tremble.
  bool snapsToPixels;

  double snapped(double position) const {
    const double scale = canvas.scaleFactor();
    return snapsToPixels && scale > 0 ? std::round(position * scale) / scale : position;
  }
  Point snapped(Point point) const { return {snapped(point.x), snapped(point.y)}; }
  // Both edges on whole pixels.
  Rect snapped(const Rect& area) const {
    return Rect::between(snapped(area.x), snapped(area.y), snapped(area.right()),
                         snapped(area.bottom()));
  }
};

}  // namespace orvane::ui
