// Each wallpaper is drawn once per size and then copied.
#include "desk/canvas/ImageSurface.hpp"
#include "showroom/desktop/DesktopLayers.hpp"
#include "showroom/desktop/WallpaperArt.hpp"

namespace orvane::showroom {

void paintWallpaperLayer(const DesktopScene& scene, const DisplayCanvas& display) {
  const desk::Appearance& appearance = scene.machine.appearance;
  const auto [x, y, width, height] = display.pixels;
  const desk::SurfacePointer& wallpaper = display.wallpapers.get(
      desk::cacheKey(appearance.wallpaper, appearance.isDark, width, height),
      [&appearance, width = width, height = height] {
        desk::SurfacePointer surface = desk::imageSurface(width, height, CAIRO_FORMAT_RGB24);
        const desk::ContextPointer drawing(cairo_create(surface.get()));
        paintWallpaper(drawing.get(), appearance.wallpaper, appearance.isDark, width, height);
        return surface;
      });
  cairo_t* const context = display.canvas.context();
  cairo_save(context);
  cairo_identity_matrix(context);
  cairo_set_source_surface(context, wallpaper.get(), x, y);
  cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_NEAREST);
  cairo_paint(context);
  cairo_restore(context);
}

}  // namespace orvane::showroom
