// Blurs a copy of the pixels, so that nothing outside of the shape changes.
#include "showroom/desktop/Glass.hpp"

#include <utility>

#include "desk/canvas/Blur.hpp"
#include "desk/canvas/ImageSurface.hpp"

namespace orvane::showroom {

void paintGlass(desk::CairoCanvas& canvas, const ui::Shape& shape, double sigma,
                const ui::Rgba& tint, GlassCache& cache) {
  cairo_t* const context = canvas.context();
  const double sigmaInPixels = sigma * canvas.scaleFactor();
  // Only what is on the screen can be behind the glass.
  const desk::PixelRect pixels = canvas.visiblePixels(shape.rect, desk::blurReach(sigmaInPixels));
  if (tint.alpha < 1 && !pixels.isEmpty()) {
    desk::SurfacePointer copy =
        desk::partOf(cairo_get_target(context), pixels.left, pixels.top, pixels.right - pixels.left,
                     pixels.bottom - pixels.top, CAIRO_FORMAT_RGB24);
    const desk::SurfacePointer& blurred =
        cache.get(desk::cacheKey(sigmaInPixels, desk::contentOf(copy.get())), [&] {
          desk::blurSurface(copy.get(), sigmaInPixels, desk::BlurEdge::extended);
          return std::move(copy);
        });
    canvas.save();
    canvas.clip(shape);
    cairo_identity_matrix(context);
    cairo_set_source_surface(context, blurred.get(), pixels.left, pixels.top);
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
