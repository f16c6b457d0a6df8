// Each wallpaper is drawn once per size and then copied.
#include "desk/canvas/ImageSurface.hpp"
#include "showroom/desktop/DesktopLayers.hpp"
#include "showroom/desktop/WallpaperArt.hpp"

namespace orvane::showroom {

namespace {

/// More than the desk has displays. Resizing the window adds sizes until all are dropped.
constexpr std::size_t keptLimit = 8;

}  // namespace

void paintWallpaperLayer(const DesktopScene& scene, const DisplayCanvas& display) {
  const desk::Appearance& appearance = scene.machine.appearance;
  WallpaperCache& kept = display.wallpapers;
  const WallpaperCache::key_type key{appearance.wallpaper, appearance.isDark, display.pixels.width,
                                     display.pixels.height};
  if (!kept.contains(key)) {
    if (kept.size() >= keptLimit) {
      kept.clear();
    }
    desk::SurfacePointer surface =
        desk::imageSurface(display.pixels.width, display.pixels.height, CAIRO_FORMAT_RGB24);
    const desk::ContextPointer context(cairo_create(surface.get()));
    paintWallpaper(context.get(), appearance.wallpaper, appearance.isDark, display.pixels.width,
                   display.pixels.height);
    kept.emplace(key, std::move(surface));
  }
  cairo_t* const context = display.canvas.context();
  cairo_save(context);
  cairo_identity_matrix(context);
  cairo_set_source_surface(context, kept.at(key).get(), display.pixels.x, display.pixels.y);
  cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_NEAREST);
  cairo_paint(context);
  cairo_restore(context);
}

}  // namespace orvane::showroom
