// Filling and stroking. A shape is painted from cached coverage if possible, otherwise by cairo.
#include <algorithm>
#include <cmath>
#include <utility>

#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/GradientRows.hpp"
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

/// The rectangles of a clip of whole pixels; none for any other clip.
std::optional<std::vector<PixelRect>> clipRectangles(cairo_t* context) {
  cairo_matrix_t matrix;
  cairo_get_matrix(context, &matrix);
  cairo_identity_matrix(context);
  cairo_rectangle_list_t* const list = cairo_copy_clip_rectangle_list(context);
  cairo_set_matrix(context, &matrix);
  std::optional<std::vector<PixelRect>> rectangles;
  if (list->status == CAIRO_STATUS_SUCCESS) {
    rectangles.emplace();
    for (int index = 0; index < list->num_rectangles; ++index) {
      const cairo_rectangle_t& found = list->rectangles[index];
      rectangles->push_back(PixelRect::around({found.x, found.y, found.width, found.height}));
    }
  }
  cairo_rectangle_list_destroy(list);
  return rectangles;
}

/// The colour converted to a pixel as cairo and pixman do it.
std::uint32_t pixelOf(const ui::Rgba& color) {
  const auto part = [](double fraction) {
    return static_cast<std::uint32_t>(std::floor(std::clamp(fraction, 0.0, 1.0) * 65535 + 0.5)) >>
           8U;
  };
  const double alpha = std::clamp(color.alpha, 0.0, 1.0);
  const auto multiplied = [&](double fraction) {
    return part(std::clamp(fraction, 0.0, 1.0) * alpha);
  };
  return part(alpha) << 24U | multiplied(color.red) << 16U | multiplied(color.green) << 8U |
         multiplied(color.blue);
}

bool isRounded(const ui::Shape& shape) {
  return shape.kind == ui::Shape::Kind::roundedRectangle || shape.kind == ui::Shape::Kind::capsule;
}

/// The rows of pixels between the corners of a shape, where its sides are vertical.
PixelRect straightRows(const ui::Shape& shape, const ui::Transform& pixels, double lineWidth) {
  // A continuous corner extends to at most 1.4 of its radius (see Shape::path).
  constexpr double reach = 1.5;
  const bool isCurved =
      shape.kind == ui::Shape::Kind::ellipse || shape.kind == ui::Shape::Kind::circle;
  const double corner = isCurved ? shape.rect.height : reach * shape.effectiveRadius() + lineWidth;
  const ui::Rect rect = pixels.apply(shape.rect.inset(ui::Edges::vertical(corner)));
  return {0, static_cast<int>(std::ceil(rect.y)) + 1, 1,
          static_cast<int>(std::floor(rect.bottom())) - 1};
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
  const bool isOnPixels = isWhole(pixelTransform().apply(shape.rect));
  if (shape.kind != ui::Shape::Kind::rectangle || !isOnPixels) {
    Clip& clip = layers_.back().clips.back();
    clip.isTangled = !clip.shapes.empty() || !isRounded(shape) || !isOnPixels;
    clip.shapes.push_back({shape, pixelTransform()});
  }
  cairo_new_path(context());
  appendShape(context(), shape);
  cairo_clip(context());
}

void CairoCanvas::fill(const ui::Shape& shape, const ui::Paint& paint) {
  if (paint.stops.empty()) {
    return;
  }
  if (!(isOneColor(paint) || runsDown(paint)) || !paintCoverage(shape, paint, 0)) {
    paintPath(shape, paint, 0);
  }
}

void CairoCanvas::stroke(const ui::Shape& shape, const ui::Paint& paint, double lineWidth) {
  if (paint.stops.empty() || !(lineWidth > 0)) {
    return;
  }
  const bool isLevel = isOneColor(paint) || (deepTarget() != nullptr && runsDown(paint));
  if (!isLevel || !paintCoverage(shape, paint, lineWidth)) {
    paintPath(shape, paint, lineWidth);
  }
}

void CairoCanvas::paintPath(const ui::Shape& shape, const ui::Paint& paint, double lineWidth) {
  if (deepTarget() != nullptr) {
    paintThroughLayer(shape.rect.inset(-lineWidth), [&] { paintPath(shape, paint, lineWidth); });
    return;
  }
  if (isOneColor(paint)) {
    const ui::Rgba& color = paint.stops.back().color;
    cairo_set_source_rgba(context(), color.red, color.green, color.blue, color.alpha);
  } else {
    cairo_set_source(context(), gradientOf(paint).get());
  }
  draw(context(), shape, lineWidth);
}

RowColors CairoCanvas::colorsOf(const ui::Paint& paint, int top, int bottom) {
  if (isOneColor(paint)) {
    return {{pixelOf(paint.stops.back().color)}, 0, true};
  }
  cairo_matrix_t matrix;
  cairo_get_matrix(context(), &matrix);
  const SurfacePointer strip = gradientRows(paint, matrix, top, bottom - top);
  cairo_surface_flush(strip.get());
  const auto* const pixels =
      reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(strip.get()));
  return {{pixels, pixels + (bottom - top)}, top - layers_.back().y, false};
}

Mask CairoCanvas::coveredRows(const ui::Shape& shape, double lineWidth, const PixelRect& rows) {
  Mask mask{imageSurface(rows.right - rows.left, rows.bottom - rows.top, CAIRO_FORMAT_A8),
            rows.left, rows.top};
  const ContextPointer drawing(cairo_create(mask.surface.get()));
  const auto place = [&](const ui::Transform& pixels) {
    const cairo_matrix_t matrix{pixels.scale,       0, 0, pixels.scale, pixels.x - rows.left,
                                pixels.y - rows.top};
    cairo_set_matrix(drawing.get(), &matrix);
  };
  for (const auto& [outline, pixels] : layers_.back().clips.back().shapes) {
    place(pixels);
    appendShape(drawing.get(), outline);
    cairo_clip(drawing.get());
  }
  place(pixelTransform());
  draw(drawing.get(), shape, lineWidth);
  return mask;
}

const CoverageRuns& CairoCanvas::coverageRunsOf(const ui::Shape& shape, double lineWidth) {
  const Clip& clip = layers_.back().clips.back();
  const ui::Transform pixels = pixelTransform();
  const ui::Rect area = pixels.apply(shape.rect.inset(-lineWidth));
  const PixelRect bounds = PixelRect::around(area);
  PixelRect straight = clip.isTangled ? PixelRect{} : straightRows(shape, pixels, lineWidth);
  // The coverage is made near the origin and moved by whole pixels, so that equal shapes share it.
  std::string key = cacheKey(shape.kind, shape.cornerStyle, shape.cornerRadius, shape.rect.width,
                             shape.rect.height, pixels.scale, area.x - bounds.left,
                             area.y - bounds.top, lineWidth);
  for (const auto& [outline, toPixels] : clip.shapes) {
    const PixelRect rows = straightRows(outline, toPixels, 0);
    straight = straight.cutTo({0, rows.top, 1, rows.bottom});
    const ui::Rect rect = toPixels.apply(outline.rect);
    key += cacheKey(outline.kind, toPixels.scale, outline.cornerStyle, outline.cornerRadius,
                    rect.x - bounds.left, rect.y - bounds.top, rect.width, rect.height);
  }
  return resources_.coverage.get(key, [&] {
    CoverageRuns made;
    const auto add = [&](int top, int bottom) {
      made.add(coveredRows(shape, lineWidth, {bounds.left, top, bounds.right, bottom}));
    };
    if (straight.isEmpty()) {
      add(bounds.top, bounds.bottom);
    } else {
      // All rows between the corners are equal.
      add(bounds.top, straight.top + 1);
      made.repeatLast(straight.bottom - straight.top - 1);
      add(straight.bottom, bounds.bottom);
    }
    made.moveBy(-bounds.left, -bounds.top);
    return made;
  });
}

bool CairoCanvas::paintCoverage(const ui::Shape& shape, const ui::Paint& paint, double lineWidth) {
  const Layer& layer = layers_.back();
  const Clip& clip = layer.clips.back();
  DeepSurface* const deep = deepTarget();
  cairo_surface_t* const target = cairo_get_target(context());
  if (shape.rect.isEmpty() ||
      (deep == nullptr &&
       (clip.isTangled || cairo_image_surface_get_format(target) != CAIRO_FORMAT_ARGB32))) {
    return false;
  }
  // Cairo computes the coverage of a rectangle between pixels differently.
  const bool isSharp = shape.kind == ui::Shape::Kind::rectangle || shape.effectiveRadius() == 0;
  if (deep == nullptr && isSharp &&
      (lineWidth > 0 || !isWhole(pixelTransform().apply(shape.rect)))) {
    return false;
  }
  std::optional<std::vector<PixelRect>> parts = clipRectangles(context());
  if (!parts && !clip.shapes.empty()) {
    parts = {clipExtents()};
  }
  if (!parts) {
    return false;
  }
  const PixelRect bounds = PixelRect::around(pixelTransform().apply(shape.rect.inset(-lineWidth)));
  const PixelRect painted = bounds.cutTo(clipExtents());
  if (painted.isEmpty()) {
    return true;
  }
  const CoverageRuns& runs = coverageRunsOf(shape, lineWidth);
  if (deep != nullptr) {
    const Rows<DeepColor> colors = deepColorsOf(paint, painted.top, painted.bottom);
    for (const PixelRect& part : *parts) {
      deep->paint(runs, bounds.left, bounds.top, part, colors);
    }
    return true;
  }
  const RowColors colors = colorsOf(paint, painted.top, painted.bottom);
  for (const PixelRect& part : *parts) {
    runs.paint(target, bounds.left - layer.x, bounds.top - layer.y,
               part.movedBy(-layer.x, -layer.y), colors);
  }
  return true;
}

}  // namespace orvane::desk
