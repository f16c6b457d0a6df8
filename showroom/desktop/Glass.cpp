// Blurs a copy of the pixels, so that nothing outside of the shape changes.
#include "showroom/desktop/Glass.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "desk/canvas/Blur.hpp"
#include "desk/canvas/ImageSurface.hpp"

namespace orvane::showroom {

namespace {

/// The pixels of the rectangle with a margin, clipped to the screen, which is all that can be
/// behind the glass.
cairo_rectangle_int_t pixelsAround(cairo_t* context, const ui::Rect& rect, int margin) {
  double left = rect.x;
  double top = rect.y;
  double right = rect.right();
  double bottom = rect.bottom();
  cairo_user_to_device(context, &left, &top);
  cairo_user_to_device(context, &right, &bottom);
  cairo_save(context);
  cairo_identity_matrix(context);
  double clipLeft = 0;
  double clipTop = 0;
  double clipRight = 0;
  double clipBottom = 0;
  cairo_clip_extents(context, &clipLeft, &clipTop, &clipRight, &clipBottom);
  cairo_restore(context);
  const int x = static_cast<int>(std::max(std::floor(left) - margin, std::floor(clipLeft)));
  const int y = static_cast<int>(std::max(std::floor(top) - margin, std::floor(clipTop)));
  return {x, y, static_cast<int>(std::min(std::ceil(right) + margin, std::ceil(clipRight))) - x,
          static_cast<int>(std::min(std::ceil(bottom) + margin, std::ceil(clipBottom))) - y};
}

}  // namespace

void paintGlass(desk::CairoCanvas& canvas, const ui::Shape& shape, double sigma,
                const ui::Rgba& tint, GlassCache& cache) {
  cairo_t* const context = canvas.context();
  const double sigmaInPixels = sigma * canvas.scaleFactor();
  const cairo_rectangle_int_t pixels =
      pixelsAround(context, shape.rect, desk::blurReach(sigmaInPixels));
  if (tint.alpha < 1 && pixels.width > 0 && pixels.height > 0) {
    desk::SurfacePointer copy = desk::partOf(cairo_get_target(context), pixels.x, pixels.y,
                                             pixels.width, pixels.height, CAIRO_FORMAT_RGB24);
    cairo_surface_t* const blurred = cache.blurred(std::move(copy), sigmaInPixels);
    canvas.save();
    canvas.clip(shape);
    cairo_identity_matrix(context);
    cairo_set_source_surface(context, blurred, pixels.x, pixels.y);
    cairo_paint(context);
    canvas.restore();
  }
  canvas.fill(shape, ui::Paint::solid(tint));
}

ui::Rgba tintFor(const desk::Appearance& appearance, ui::Rgba tint) {
  if (appearance.reducesTransparency) {
    tint.alpha = 1;
  }
  return tint;
}

}  // namespace orvane::showroom
