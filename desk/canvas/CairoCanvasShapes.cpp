// Filling and stroking: by cairo, and from cached coverage on a picture of sixteen bits.
#include <cmath>
#include <string>

#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/Gradients.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/ShadowMask.hpp"

namespace orvane::desk {

namespace {

/// Whether cairo takes it for a whole number: it rounds coordinates to 1/256 pixel, and at scales
/// such as 1.1 a whole pixel is not exactly a whole number.
bool isWhole(double number) {
  return std::abs(number - std::round(number)) < 1.0 / 512;
}

bool isWhole(const ui::Rect& pixels) {
  return isWhole(pixels.x) && isWhole(pixels.y) && isWhole(pixels.right()) &&
         isWhole(pixels.bottom());
}

void draw(cairo_t* context, const ui::Shape& shape, double lineWidth) {
  cairo_new_path(context);
  appendShape(context, shape);
  if (lineWidth > 0) {
    cairo_set_line_width(context, lineWidth);
    cairo_stroke(context);
  } else {
    cairo_fill(context);
  }
}

}  // namespace

PixelRect CairoCanvas::clipExtents() {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
  cairo_matrix_t matrix;
  cairo_get_matrix(context(), &matrix);
  cairo_identity_matrix(context());
  cairo_clip_extents(context(), &left, &top, &right, &bottom);
  cairo_set_matrix(context(), &matrix);
  return PixelRect::around(ui::Rect::between(left, top, right, bottom));
}

PixelRect CairoCanvas::visiblePixels(const ui::Rect& rect, int margin) {
  const PixelRect pixels = PixelRect::around(pixelTransform().apply(rect));
  return PixelRect{pixels.left - margin, pixels.top - margin, pixels.right + margin,
                   pixels.bottom + margin}
      .cutTo(clipExtents());
}

void CairoCanvas::clip(const ui::Shape& shape) {
  const ui::Transform pixels = pixelTransform();
  if (shape.kind != ui::Shape::Kind::rectangle || !isWhole(pixels.apply(shape.rect))) {
    layers_.back().clips.back().push_back({shape, pixels});
  }
  cairo_new_path(context());
  appendShape(context(), shape);
  cairo_clip(context());
}

void CairoCanvas::fill(const ui::Shape& shape, const ui::Paint& paint) {
  paintShape(shape, paint, 0);
}

void CairoCanvas::stroke(const ui::Shape& shape, const ui::Paint& paint, double lineWidth) {
  if (lineWidth > 0) {
    paintShape(shape, paint, lineWidth);
  }
}

void CairoCanvas::paintShape(const ui::Shape& shape, const ui::Paint& paint, double lineWidth) {
  if (paint.stops.empty()) {
    return;
  }
  DeepSurface* const deep = deepTarget();
  if (deep == nullptr) {
    paintPath(shape, paint, lineWidth);
    return;
  }
  const ui::Rect area = shape.rect.inset(-lineWidth);
  if (shape.rect.isEmpty() || !(isOneColor(paint) || runsDown(paint))) {
    paintThroughLayer(area, [&] { paintPath(shape, paint, lineWidth); });
    return;
  }
  const PixelRect bounds = PixelRect::around(pixelTransform().apply(area));
  const PixelRect painted = bounds.cutTo(clipExtents());
  if (!painted.isEmpty()) {
    deep->paintShape(shapeMask(shape, lineWidth, bounds), bounds.left, bounds.top, painted,
                     colorsOf(paint, painted.top, painted.bottom));
  }
}

void CairoCanvas::paintPath(const ui::Shape& shape, const ui::Paint& paint, double lineWidth) {
  if (isOneColor(paint)) {
    const ui::Rgba& color = paint.stops.back().color;
    cairo_set_source_rgba(context(), color.red, color.green, color.blue, color.alpha);
  } else {
    cairo_set_source(context(), gradientOf(paint).get());
  }
  draw(context(), shape, lineWidth);
}

SurfacePointer CairoCanvas::makeShapeMask(const ui::Shape& shape, double lineWidth,
                                          const PixelRect& bounds) {
  SurfacePointer surface =
      imageSurface(bounds.right - bounds.left, bounds.bottom - bounds.top, CAIRO_FORMAT_A8);
  const ContextPointer drawing(cairo_create(surface.get()));
  const auto place = [&](const ui::Transform& pixels) {
    const cairo_matrix_t matrix{pixels.scale,         0, 0, pixels.scale, pixels.x - bounds.left,
                                pixels.y - bounds.top};
    cairo_set_matrix(drawing.get(), &matrix);
  };
  for (const auto& [outline, pixels] : layers_.back().clips.back()) {
    place(pixels);
    appendShape(drawing.get(), outline);
    cairo_clip(drawing.get());
  }
  place(pixelTransform());
  draw(drawing.get(), shape, lineWidth);
  return surface;
}

cairo_surface_t* CairoCanvas::shapeMask(const ui::Shape& shape, double lineWidth,
                                        const PixelRect& bounds) {
  const auto keyOf = [&](const ui::Shape& outline, const ui::Transform& pixels) {
    const ui::Rect rect = pixels.apply(outline.rect);
    return cacheKey(outline.kind, outline.cornerStyle, outline.cornerRadius, pixels.scale,
                    rect.x - bounds.left, rect.y - bounds.top, rect.width, rect.height);
  };
  std::string key = cacheKey(lineWidth) + keyOf(shape, pixelTransform());
  for (const auto& [outline, pixels] : layers_.back().clips.back()) {
    key += keyOf(outline, pixels);
  }
  return resources_.shapes.get(key, [&] { return makeShapeMask(shape, lineWidth, bounds); }).get();
}

}  // namespace orvane::desk
