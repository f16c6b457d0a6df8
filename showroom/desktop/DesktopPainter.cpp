// Paints the layers on each screen, through a canvas in global coordinates.
#include "showroom/desktop/DesktopPainter.hpp"

#include "showroom/desktop/DesktopLayers.hpp"
#include "showroom/desktop/MonitorArt.hpp"

namespace orvane::showroom {

void DesktopPainter::paint(cairo_surface_t* surface, const DesktopLayout& layout,
                           const DesktopScene& scene) {
  paintSurroundings(surface, layout, scene, resources_);
  for (std::size_t index = 0; index < layout.screens().size(); ++index) {
    paintScreen(surface, layout, scene, index);
  }
}

void DesktopPainter::paintScreen(cairo_surface_t* surface, const DesktopLayout& layout,
                                 const DesktopScene& scene, std::size_t index) {
  const ScreenPlacement& screen = layout.screens()[index];
  const double scale = layout.scale();
  desk::CairoCanvas canvas(surface, scale, resources_);
  canvas.save();
  // The clip consists of whole pixels, so it is set before the canvas is transformed.
  cairo_t* const context = canvas.context();
  cairo_save(context);
  cairo_identity_matrix(context);
  cairo_rectangle(context, screen.pixels.x, screen.pixels.y, screen.pixels.width,
                  screen.pixels.height);
  cairo_restore(context);
  cairo_clip(context);
  canvas.transform(ui::Transform::translation(
      {screen.pixels.x / scale - screen.frame.x, screen.pixels.y / scale - screen.frame.y}));
  const DisplayCanvas display{canvas, resources_,   glass_,       wallpapers_,
                              index,  screen.frame, screen.pixels};
  // Back to front.
  for (const auto paintLayer :
       {paintWallpaperLayer, paintWindowLayer, paintDockLayer, paintMenuBarLayer,
        paintHighWindowLayer, paintOpenMenuLayer, paintZoneLayer, paintPointerLayer}) {
    canvas.save();
    paintLayer(scene, display);
    canvas.restore();
  }
  canvas.restore();
}

}  // namespace orvane::showroom
