// Monitors are dark frames with the display's name on the lower border.
#include "showroom/desktop/MonitorArt.hpp"

#include <algorithm>
#include <string>

#include "desk/canvas/CairoCanvas.hpp"

namespace orvane::showroom {

namespace {

constexpr double monitorCorner = 12;

ui::Paint vertical(const ui::Rgba& top, const ui::Rgba& bottom, const ui::Rect& rect) {
  return {{{top, 0}, {bottom, 1}}, {rect.x, rect.y}, {rect.x, rect.bottom()}};
}

ui::Rect inPoints(const cairo_rectangle_int_t& pixels, double scale) {
  return {pixels.x / scale, pixels.y / scale, pixels.width / scale, pixels.height / scale};
}

ui::Rect monitorAround(const ui::Rect& screen) {
  return ui::Rect::between(screen.x - DesktopLayout::border, screen.y - DesktopLayout::border,
                           screen.right() + DesktopLayout::border,
                           screen.bottom() + DesktopLayout::lowerBorder);
}

/// Whether there is room for a stand: no other monitor is directly below.
bool hasRoomBelow(const DesktopLayout& layout, std::size_t index) {
  const auto& screens = layout.screens();
  const ui::Rect own = monitorAround(inPoints(screens[index].pixels, layout.scale()));
  const ui::Rect below{own.x, own.bottom(), own.width, DesktopLayout::standHeight};
  return std::ranges::none_of(screens, [&](const ScreenPlacement& other) {
    return &other != &screens[index] &&
           monitorAround(inPoints(other.pixels, layout.scale())).intersects(below);
  });
}

void paintLaptopBase(desk::CairoCanvas& canvas, const ui::Rect& monitor, bool isDark) {
  const ui::Rect base{monitor.x - 12, monitor.bottom() - 1, monitor.width + 24, 13};
  const ui::Rgba top = isDark ? ui::Rgba{0.4, 0.41, 0.44, 1} : ui::Rgba{0.84, 0.85, 0.87, 1};
  const ui::Rgba bottom = isDark ? ui::Rgba{0.24, 0.25, 0.28, 1} : ui::Rgba{0.66, 0.67, 0.7, 1};
  const ui::Shape shape = ui::Shape::roundedRectangle(base, 5);
  canvas.shadow(shape, {{0, 0, 0, 0.3}, 16, {0, 7}});
  canvas.fill(shape, vertical(top, bottom, base));
  const ui::Rect notch{base.center().x - 70, base.y, 140, 5};
  canvas.fill(ui::Shape::roundedRectangle(notch, 2.5), ui::Paint::solid(bottom));
}

void paintStand(desk::CairoCanvas& canvas, const ui::Rect& monitor, bool isDark) {
  const ui::Rect neck{monitor.center().x - 62, monitor.bottom() - 2, 124, 36};
  const ui::Rect stand{monitor.center().x - 122, neck.bottom() - 1, 244, 8};
  const ui::Rgba light = isDark ? ui::Rgba{0.34, 0.35, 0.38, 1} : ui::Rgba{0.8, 0.81, 0.84, 1};
  const ui::Rgba shade = isDark ? ui::Rgba{0.22, 0.23, 0.26, 1} : ui::Rgba{0.62, 0.64, 0.68, 1};
  canvas.shadow(ui::Shape::roundedRectangle(stand, 4), {{0, 0, 0, 0.3}, 14, {0, 6}});
  canvas.fill(ui::Shape::rectangle(neck), vertical(shade, light, neck));
  canvas.fill(ui::Shape::roundedRectangle(stand, 4), vertical(light, shade, stand));
}

void paintMonitor(desk::CairoCanvas& canvas, const ui::Rect& screen, const desk::Display& display,
                  bool hasStand, bool isDark, desk::DrawingResources& resources) {
  const ui::Rect monitor = monitorAround(screen);
  const ui::Shape shape = ui::Shape::roundedRectangle(monitor, monitorCorner);
  if (hasStand && !display.isBuiltIn) {
    paintStand(canvas, monitor, isDark);
  }
  canvas.shadow(shape, {{0, 0, 0, isDark ? 0.55 : 0.32}, 30, {0, 12}});
  canvas.fill(shape, vertical({0.13, 0.13, 0.15, 1}, {0.07, 0.07, 0.08, 1}, monitor));
  canvas.stroke(shape.inset(0.5), ui::Paint::solid({1, 1, 1, 0.14}), 1);
  if (hasStand && display.isBuiltIn) {
    paintLaptopBase(canvas, monitor, isDark);
  }
  const ui::Font font = ui::Font::system(13, ui::Weight::medium);
  const double width = resources.shaper.measure(display.name, font).width;
  canvas.text(display.name, font, {1, 1, 1, 0.62},
              {screen.center().x - width / 2, screen.bottom() + DesktopLayout::lowerBorder - 8.5});
}

}  // namespace

void paintSurroundings(cairo_surface_t* surface, const DesktopLayout& layout,
                       const DesktopScene& scene, desk::DrawingResources& resources) {
  desk::CairoCanvas canvas(surface, layout.scale(), resources);
  const ui::Rect all = inPoints(layout.pixels(), layout.scale());
  if (layout.style() == DesktopStyle::exact) {
    canvas.fill(ui::Shape::rectangle(all), ui::Paint::solid({0.1, 0.1, 0.11, 1}));
    return;
  }
  const bool isDark = scene.machine.appearance.isDark;
  canvas.fill(ui::Shape::rectangle(all),
              isDark ? vertical({0.13, 0.14, 0.17, 1}, {0.09, 0.09, 0.11, 1}, all)
                     : vertical({0.94, 0.95, 0.965, 1}, {0.84, 0.86, 0.89, 1}, all));
  const auto& displays = scene.machine.displays.all();
  for (std::size_t index = 0; index < layout.screens().size() && index < displays.size(); ++index) {
    paintMonitor(canvas, inPoints(layout.screens()[index].pixels, layout.scale()), displays[index],
                 hasRoomBelow(layout, index), isDark, resources);
  }
}

}  // namespace orvane::showroom
