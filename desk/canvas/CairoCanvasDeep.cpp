// Painting on and showing a picture of sixteen bits. Cairo has only surfaces of eight bits: what it
// must paint goes through a layer.
#include <algorithm>
#include <cmath>
#include <utility>

#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/Gradients.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/ShadowMask.hpp"

namespace orvane::desk {

CairoCanvas::CairoCanvas(DeepSurface& target, double scaleFactor, DrawingResources& resources)
    : scaleFactor_(scaleFactor), resources_(resources), deep_(&target) {
  // This surface only carries the transform and the clip.
  const cairo_rectangle_t extents{0, 0, static_cast<double>(target.width()),
                                  static_cast<double>(target.height())};
  const SurfacePointer sheet(cairo_recording_surface_create(CAIRO_CONTENT_ALPHA, &extents));
  Layer base;
  base.context.reset(cairo_create(sheet.get()));
  cairo_scale(base.context.get(), scaleFactor, scaleFactor);
  layers_.push_back(std::move(base));
}

RowColors CairoCanvas::colorsOf(const ui::Paint& paint, int top, int bottom) {
  if (isOneColor(paint)) {
    return {{DeepSurface::colorOf(paint.stops.back().color)}};
  }
  const ui::Transform pixels = pixelTransform();
  RowColors rows{{}, top};
  for (int row = top; row < bottom; ++row) {
    const double y = (row + 0.5 - pixels.y) / pixels.scale;
    rows.colors.push_back(
        DeepSurface::colorOf(colorAt(paint, (y - paint.start.y) / (paint.end.y - paint.start.y))));
  }
  return rows;
}

void CairoCanvas::cutToClip(cairo_surface_t* picture, int x, int y) {
  const Clip& shapes = layers_.back().clips.back();
  if (shapes.empty()) {
    return;
  }
  const SurfacePointer inside =
      imageSurface(cairo_image_surface_get_width(picture), cairo_image_surface_get_height(picture),
                   CAIRO_FORMAT_A8);
  const ContextPointer filling(cairo_create(inside.get()));
  for (const auto& [outline, pixels] : shapes) {
    const cairo_matrix_t matrix{pixels.scale, 0, 0, pixels.scale, pixels.x - x, pixels.y - y};
    cairo_set_matrix(filling.get(), &matrix);
    appendShape(filling.get(), outline);
    cairo_clip(filling.get());
  }
  cairo_paint(filling.get());
  cairo_surface_set_device_offset(picture, 0, 0);
  const ContextPointer cutting(cairo_create(picture));
  cairo_set_operator(cutting.get(), CAIRO_OPERATOR_DEST_IN);
  cairo_set_source_surface(cutting.get(), inside.get(), 0, 0);
  cairo_paint(cutting.get());
}

void CairoCanvas::paintThroughLayer(const ui::Rect& bounds, const std::function<void()>& paint) {
  beginLayer(bounds, 1, std::nullopt);
  paint();
  endLayer();
}

void CairoCanvas::picture(const DeepSurface& picture, ui::Point corner) {
  const ui::Point place = pixelTransform().apply(corner);
  const int left = static_cast<int>(std::lround(place.x));
  const int top = static_cast<int>(std::lround(place.y));
  const PixelRect area =
      clipExtents().cutTo({left, top, left + picture.width(), top + picture.height()});
  if (area.isEmpty()) {
    return;
  }
  // Drawn over a copy of the target, so that both are rounded together; then clipped.
  cairo_t* const target = context();
  const SurfacePointer part = partOf(cairo_get_target(target), area.left, area.top,
                                     area.right - area.left, area.bottom - area.top);
  picture.paintOver(part.get(), left - area.left, top - area.top);
  cairo_save(target);
  cairo_identity_matrix(target);
  cairo_set_operator(target, CAIRO_OPERATOR_SOURCE);
  cairo_set_source_surface(target, part.get(), area.left, area.top);
  cairo_new_path(target);
  cairo_rectangle(target, area.left, area.top, area.right - area.left, area.bottom - area.top);
  cairo_fill(target);
  cairo_restore(target);
}

}  // namespace orvane::desk
