// Paints the layers on each screen, through a canvas in global coordinates.
#include "showroom/desktop/DesktopPainter.hpp"

#include "showroom/desktop/DockLayer.hpp"
#include "showroom/desktop/MenuBarLayer.hpp"
#include "showroom/desktop/MonitorArt.hpp"
#include "showroom/desktop/OpenMenuLayer.hpp"
#include "showroom/desktop/PointerLayer.hpp"
#include "showroom/desktop/WallpaperLayer.hpp"
#include "showroom/desktop/WindowLayer.hpp"
#include "showroom/desktop/ZoneLayer.hpp"

namespace orvane::showroom {

DesktopPainter::DesktopPainter(desk::DrawingResources& resources) : resources_(resources) {
  layers_.push_back(std::make_unique<WallpaperLayer>());
  layers_.push_back(std::make_unique<WindowLayer>(WindowLayer::Part::belowMenuBar));
  layers_.push_back(std::make_unique<DockLayer>());
  layers_.push_back(std::make_unique<MenuBarLayer>());
  layers_.push_back(std::make_unique<WindowLayer>(WindowLayer::Part::aboveMenuBar));
  layers_.push_back(std::make_unique<OpenMenuLayer>());
  layers_.push_back(std::make_unique<ZoneLayer>());
  layers_.push_back(std::make_unique<PointerLayer>());
}

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
  const DisplayCanvas display{canvas, resources_, glass_, index, screen.frame, screen.pixels};
  for (const auto& layer : layers_) {
    canvas.save();
    layer->paint(scene, display);
    canvas.restore();
  }
  canvas.restore();
}

}  // namespace orvane::showroom
