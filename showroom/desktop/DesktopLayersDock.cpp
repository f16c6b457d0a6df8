// A glass shelf with tiles.
#include "showroom/desktop/DesktopLayers.hpp"
#include "showroom/desktop/DockShelf.hpp"
#include "showroom/desktop/DockTileArt.hpp"
#include "showroom/desktop/Glass.hpp"
#include "showroom/desktop/MenuClock.hpp"
#include "showroom/desktop/Rects.hpp"

namespace orvane::showroom {

namespace {

constexpr double dockGlassSigma = 18;

void paintShelf(desk::CairoCanvas& canvas, const DockShelf& dock,
                const desk::Appearance& appearance, GlassCache& glass) {
  const bool isDark = appearance.isDark;
  const ui::Shape shape = ui::Shape::roundedRectangle(dock.shelf, dock.cornerRadius);
  canvas.shadow(shape, {{0, 0, 0, isDark ? 0.4 : 0.2}, 18, {0, 4}});
  paintGlass(canvas, shape, dockGlassSigma,
             tintFor(appearance,
                     isDark ? ui::Rgba{0.13, 0.13, 0.16, 0.46} : ui::Rgba{0.97, 0.97, 0.99, 0.42}),
             glass);
  canvas.stroke(shape.inset(-0.25), ui::Paint::solid({0, 0, 0, isDark ? 0.45 : 0.14}), 0.5);
  canvas.stroke(shape.inset(0.5), ui::Paint::solid({1, 1, 1, isDark ? 0.16 : 0.42}), 1);
}

}  // namespace

void paintDockLayer(const DesktopScene& scene, const DisplayCanvas& display) {
  const desk::Dock& dock = scene.machine.dock;
  const double shown = dock.shownFraction();
  if (dock.displayIndex() != display.displayIndex || shown <= 0) {
    return;
  }
  const DockShelf shelf =
      DockShelf::make(rectOf(dock.frame()), dock.edge(), shown, dockTileCount());
  const bool isDark = scene.machine.appearance.isDark;
  desk::CairoCanvas& canvas = display.canvas;
  paintShelf(canvas, shelf, scene.machine.appearance, display.glass);
  const int day = menuClockDay(scene.machine.clock);
  const ui::Rgba ink = isDark ? ui::Rgba{1, 1, 1, 0.8} : ui::Rgba{0, 0, 0, 0.6};
  for (std::size_t index = 0; index < shelf.tiles.size(); ++index) {
    paintDockTile(canvas, index, shelf.tiles[index], day);
    if (isDockTileRunning(index)) {
      canvas.fill(ui::Shape::circle(shelf.dots[index]), ui::Paint::solid(ink));
    }
  }
  canvas.fill(ui::Shape::rectangle(shelf.separator),
              ui::Paint::solid(isDark ? ui::Rgba{1, 1, 1, 0.22} : ui::Rgba{0, 0, 0, 0.18}));
}

}  // namespace orvane::showroom
