// A dark arrow with a white border, its tip at the pointer's location.
#include <array>

#include "showroom/desktop/DesktopLayers.hpp"

namespace orvane::showroom {

namespace {

/// In points, relative to the tip.
constexpr std::array<ui::Point, 7> outline{
    {{0, 0}, {0, 16.2}, {3.8, 12.7}, {6.5, 18.6}, {9.2, 17.4}, {6.6, 11.7}, {11.7, 11.5}}};

void addArrow(cairo_t* context) {
  cairo_new_path(context);
  for (const ui::Point& point : outline) {
    cairo_line_to(context, point.x, point.y);
  }
  cairo_close_path(context);
}

}  // namespace

void paintPointerLayer(const DesktopScene& scene, const DisplayCanvas& display) {
  if (scene.onlySurface) {
    return;
  }
  const CGPoint place = scene.machine.pointer.location();
  cairo_t* const context = display.canvas.context();
  cairo_translate(context, place.x, place.y);
  cairo_scale(context, scene.pointerMagnification, scene.pointerMagnification);
  cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
  // Three strokes approximate a blurred shadow.
  for (const double width : {5.0, 3.6, 2.4}) {
    cairo_save(context);
    cairo_translate(context, 0.4, 1);
    addArrow(context);
    cairo_restore(context);
    cairo_set_source_rgba(context, 0, 0, 0, 0.1);
    cairo_set_line_width(context, width);
    cairo_stroke(context);
  }
  addArrow(context);
  cairo_set_source_rgb(context, 1, 1, 1);
  cairo_set_line_width(context, 2.4);
  cairo_stroke_preserve(context);
  cairo_set_source_rgb(context, 0.08, 0.08, 0.1);
  cairo_fill(context);
}

}  // namespace orvane::showroom
