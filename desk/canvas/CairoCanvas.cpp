// Text, symbols and shadows are painted from cached masks. A layer is a separate surface, aligned
// with the target's pixels.
#include "desk/canvas/CairoCanvas.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "desk/canvas/Blur.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/ShadowMask.hpp"

namespace orvane::desk {
namespace {

enum class MaskKind { text, symbol, shadow, layerShadow };

cairo_matrix_t matrixOf(cairo_t* context) {
  cairo_matrix_t matrix;
  cairo_get_matrix(context, &matrix);
  return matrix;
}

void setColor(cairo_t* context, const ui::Rgba& color) {
  cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
}

/// Splits a coordinate in pixels into the whole pixel and the fraction, in steps of 1/`parts`.
void split(double place, double parts, int& pixel, double& phase) {
  const double steps = std::floor(place * parts + 0.5);
  pixel = static_cast<int>(std::floor(steps / parts));
  phase = steps / parts - pixel;
}

/// A coordinate or distance in pixels, rounded to 1/`parts`.
double rounded(double place, double parts) {
  return std::floor(place * parts + 0.5) / parts;
}

/// The number of subpixel positions of shadow masks.
constexpr double placeSteps = 64;

ui::Shape inPixels(ui::Shape shape, const ui::Transform& pixels) {
  shape.rect = pixels.apply(shape.rect);
  shape.cornerRadius *= std::abs(pixels.scale);
  return shape;
}

double sigmaInPixels(const ui::PaintShadow& shadow, const ui::Transform& pixels) {
  return std::max(shadow.radius, 0.0) / 2.0 * std::abs(pixels.scale);
}

std::string keyOf(MaskKind kind, const std::string& content, const ui::Font& font,
                  const PixelPlacement& placement) {
  return cacheKey(kind, content, font.size, font.weight, font.tracking, placement.scale,
                  placement.phaseX, placement.phaseY);
}

}  // namespace

CairoCanvas::CairoCanvas(cairo_surface_t* target, double scaleFactor, DrawingResources& resources)
    : scaleFactor_(scaleFactor), resources_(resources) {
  Layer base;
  base.context.reset(cairo_create(target));
  cairo_scale(base.context.get(), scaleFactor, scaleFactor);
  layers_.push_back(std::move(base));
}

void CairoCanvas::save() {
  cairo_save(context());
  layers_.back().clips.push_back(layers_.back().clips.back());
}

void CairoCanvas::restore() {
  cairo_restore(context());
  layers_.back().clips.pop_back();
}

ui::Transform CairoCanvas::pixelTransform() {
  const cairo_matrix_t matrix = matrixOf(context());
  return {matrix.xx, matrix.x0, matrix.y0};
}

void CairoCanvas::transform(const ui::Transform& transform) {
  const cairo_matrix_t matrix{transform.scale, 0, 0, transform.scale, transform.x, transform.y};
  // A scale of zero would put the context into a permanent error state; an empty clip has the same
  // effect on the drawing.
  if (!transform.isInvertible()) {
    cairo_new_path(context());
    cairo_clip(context());
    return;
  }
  cairo_transform(context(), &matrix);
}

void CairoCanvas::shadow(const ui::Shape& shape, const ui::PaintShadow& shadow) {
  const ui::Transform pixels = pixelTransform();
  if (shape.rect.isEmpty() || !(shadow.color.alpha > 0) || !pixels.isInvertible()) {
    return;
  }
  const double sigma = sigmaInPixels(shadow, pixels);
  // The mask is made near the origin and moved by whole pixels, so that equal shapes share it.
  int pixelX = 0;
  int pixelY = 0;
  ui::Shape hole = inPixels(shape, pixels);
  split(hole.rect.x, placeSteps, pixelX, hole.rect.x);
  split(hole.rect.y, placeSteps, pixelY, hole.rect.y);
  ui::Shape cast = hole;
  cast.rect = cast.rect.movedBy({rounded(shadow.offset.x * pixels.scale, placeSteps),
                                 rounded(shadow.offset.y * pixels.scale, placeSteps)});
  const std::string key =
      cacheKey(MaskKind::shadow, hole.kind, hole.cornerStyle, hole.cornerRadius, hole.rect.x,
               hole.rect.y, hole.rect.width, hole.rect.height, cast.rect.x, cast.rect.y, sigma);
  const Mask& mask = resources_.masks.get(key, [&] { return makeShadowMask(cast, sigma, hole); });
  // The shadow is not drawn within the shape.
  const ui::Rect inner = hole.rect.inset(hole.effectiveRadius() + 1);
  if (inner.isEmpty() || !mask.surface) {
    paintMask(mask, pixelX, pixelY, shadow.color);
    return;
  }
  paintMaskAround(mask, pixelX, pixelY, inner, shadow.color);
}

void CairoCanvas::paintMaskAround(const Mask& mask, int anchorX, int anchorY, const ui::Rect& inner,
                                  const ui::Rgba& color) {
  const double innerLeft = std::ceil(inner.x) + anchorX;
  const double innerTop = std::ceil(inner.y) + anchorY;
  const double innerRight = std::max(innerLeft, std::floor(inner.right()) + anchorX);
  const double innerBottom = std::max(innerTop, std::floor(inner.bottom()) + anchorY);
  const double outerLeft = mask.x + anchorX;
  const double outerTop = mask.y + anchorY;
  const double outerRight = outerLeft + cairo_image_surface_get_width(mask.surface.get());
  const double outerBottom = outerTop + cairo_image_surface_get_height(mask.surface.get());
  for (const ui::Rect& part :
       {ui::Rect::between(outerLeft, outerTop, outerRight, innerTop),
        ui::Rect::between(outerLeft, innerTop, innerLeft, innerBottom),
        ui::Rect::between(innerRight, innerTop, outerRight, innerBottom),
        ui::Rect::between(outerLeft, innerBottom, outerRight, outerBottom)}) {
    cairo_save(context());
    const cairo_matrix_t matrix = matrixOf(context());
    cairo_identity_matrix(context());
    cairo_new_path(context());
    cairo_rectangle(context(), part.x, part.y, part.width, part.height);
    cairo_clip(context());
    cairo_set_matrix(context(), &matrix);
    paintMask(mask, anchorX, anchorY, color);
    cairo_restore(context());
  }
}

void CairoCanvas::beginLayer(const ui::Rect& bounds, double opacity,
                             const std::optional<ui::PaintShadow>& shadow) {
  cairo_t* outer = context();
  const ui::Transform pixels = pixelTransform();
  const PixelRect clip = clipExtents();
  ui::Rect area = pixels.apply(bounds);
  ui::Rect visible = ui::Rect::between(clip.left, clip.top, clip.right, clip.bottom);
  if (shadow) {
    // A shape outside of the clip may cast its shadow into it.
    const double reach = blurReach(sigmaInPixels(*shadow, pixels));
    const ui::Edges grown = ui::Edges::symmetric(reach + std::abs(shadow->offset.x * pixels.scale),
                                                 reach + std::abs(shadow->offset.y * pixels.scale));
    area = area.outset(grown);
    visible = visible.outset(grown);
  }
  // One more pixel for antialiased edges.
  const PixelRect covered = PixelRect::around(area.inset(-1).intersection(visible));

  Layer layer;
  layer.opacity = std::clamp(opacity, 0.0, 1.0);
  layer.shadow = shadow;
  layer.x = covered.left;
  layer.y = covered.top;
  const SurfacePointer surface =
      imageSurface(covered.right - covered.left, covered.bottom - covered.top);
  cairo_surface_set_device_offset(surface.get(), -layer.x, -layer.y);
  layer.context.reset(cairo_create(surface.get()));
  const cairo_matrix_t matrix = matrixOf(outer);
  cairo_set_matrix(layer.context.get(), &matrix);
  layers_.push_back(std::move(layer));
}

void CairoCanvas::endLayer() {
  if (layers_.size() < 2) {
    return;
  }
  const Layer layer = std::move(layers_.back());
  layers_.pop_back();
  if (layer.shadow) {
    paintLayerShadow(layer, *layer.shadow);
  }
  cairo_surface_t* const picture = cairo_get_target(layer.context.get());
  if (DeepSurface* const deep = deepTarget()) {
    cutToClip(picture, layer.x, layer.y);
    deep->paintPicture(picture, layer.x, layer.y, clipExtents(), layer.opacity);
    return;
  }
  cairo_t* target = context();
  cairo_save(target);
  cairo_identity_matrix(target);
  cairo_set_source_surface(target, picture, 0, 0);
  cairo_paint_with_alpha(target, layer.opacity);
  cairo_restore(target);
}

void CairoCanvas::paintLayerShadow(const Layer& layer, const ui::PaintShadow& shadow) {
  const ui::Transform pixels = pixelTransform();
  Mask alpha{coverageOf(cairo_get_target(layer.context.get()), layer.x, layer.y)};
  const double sigma = sigmaInPixels(shadow, pixels);
  const std::string key = cacheKey(MaskKind::layerShadow, sigma, contentOf(alpha.surface.get()));
  const Mask& mask = resources_.masks.get(key, [&] {
    blurSurface(alpha.surface.get(), sigma, BlurEdge::transparent);
    return std::move(alpha);
  });
  // An opaque layer is drawn over its shadow; a translucent one is composed with it first. Shadows
  // are placed on whole pixels, which avoids resampling and is invisible after the blur.
  const int x = layer.x + static_cast<int>(std::lround(shadow.offset.x * pixels.scale));
  const int y = layer.y + static_cast<int>(std::lround(shadow.offset.y * pixels.scale));
  if (layer.opacity >= 1) {
    paintMask(mask, x, y, shadow.color);
    return;
  }
  cairo_t* const target = layer.context.get();
  cairo_save(target);
  cairo_reset_clip(target);
  cairo_set_operator(target, CAIRO_OPERATOR_DEST_OVER);
  cairo_identity_matrix(target);
  setColor(target, shadow.color);
  cairo_mask_surface(target, mask.surface.get(), x, y);
  cairo_restore(target);
}

bool CairoCanvas::isScaledByTransform() {
  constexpr double tolerance = 1.0e-9;
  return std::abs(pixelTransform().scale - scaleFactor_) > tolerance;
}

PixelPlacement CairoCanvas::placementOf(ui::Point anchor) {
  const ui::Transform pixels = pixelTransform();
  const ui::Point place = pixels.apply(anchor);
  // Masks have quarter-pixel positions, except during scaling, which must be smooth.
  const double steps = isScaledByTransform() ? 1024 : 4;
  PixelPlacement placement;
  placement.scale = pixels.scale;
  split(place.x, steps, placement.pixelX, placement.phaseX);
  split(place.y, steps, placement.pixelY, placement.phaseY);
  return placement;
}

void CairoCanvas::paintMask(const Mask& mask, int anchorX, int anchorY, const ui::Rgba& color) {
  if (!mask.surface) {
    return;
  }
  const int x = anchorX + mask.x;
  const int y = anchorY + mask.y;
  if (DeepSurface* const deep = deepTarget()) {
    const RowColors colors{{DeepSurface::colorOf(color)}};
    if (layers_.back().clips.back().empty()) {
      deep->paintMask(mask.surface.get(), x, y, clipExtents(), colors);
    } else {
      const SurfacePointer cut = coverageOf(mask.surface.get(), 0, 0);
      cutToClip(cut.get(), x, y);
      deep->paintMask(cut.get(), x, y, clipExtents(), colors);
    }
    return;
  }
  cairo_t* target = context();
  cairo_save(target);
  cairo_identity_matrix(target);
  setColor(target, color);
  cairo_mask_surface(target, mask.surface.get(), x, y);
  cairo_restore(target);
}

void CairoCanvas::text(const std::string& line, const ui::Font& font, const ui::Rgba& color,
                       ui::Point baseline) {
  PixelPlacement placement = placementOf(baseline);
  if (!isScaledByTransform()) {
    // A baseline on a whole pixel keeps horizontal edges sharp.
    placement.pixelY += placement.phaseY >= 0.5 ? 1 : 0;
    placement.phaseY = 0;
  }
  const Mask& mask = resources_.masks.get(keyOf(MaskKind::text, line, font, placement), [&] {
    return resources_.shaper.makeMask(line, font, placement);
  });
  paintMask(mask, placement.pixelX, placement.pixelY, color);
}

void CairoCanvas::image(const std::string& name, const ui::Rect& destination) {
  if (!resources_.images.size(name)) {
    resources_.missingNames.insert(name);
    return;
  }
  const auto paint = [&] { resources_.images.paint(context(), name, destination); };
  if (deepTarget() != nullptr) {
    paintThroughLayer(destination, paint);
  } else {
    paint();
  }
}

void CairoCanvas::symbol(const std::string& name, const ui::Font& font, const ui::Rgba& color,
                         const ui::Rect& rect) {
  if (!SymbolLibrary::contains(name)) {
    resources_.missingNames.insert(name);
    return;
  }
  const PixelPlacement placement = placementOf(rect.center());
  const Mask& mask = resources_.masks.get(keyOf(MaskKind::symbol, name, font, placement), [&] {
    return resources_.symbols.makeMask(name, font, placement);
  });
  paintMask(mask, placement.pixelX, placement.pixelY, color);
}

}  // namespace orvane::desk
