// The items at the right are laid out from the right edge, so the clock's width does not move them.
#include <array>
#include <string>

#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/DesktopLayers.hpp"
#include "showroom/desktop/Glass.hpp"
#include "showroom/desktop/MenuClock.hpp"
#include "showroom/desktop/Rects.hpp"

namespace orvane::showroom {

namespace {

constexpr double height = 24;
constexpr double menuBarGlassSigma = 16;
constexpr double sideMargin = 14;
constexpr double baseline = 16.5;
constexpr double titleSpacing = 20;
constexpr ui::Font font = ui::Font::system(13, ui::Weight::medium);

constexpr std::array<const char*, 6> titles{"Desk", "File", "Edit", "View", "Window", "Help"};

/// The desk's logo: a screen with a shelf.
void paintMark(desk::CairoCanvas& canvas, ui::Point at, const ui::Rgba& ink) {
  const ui::Rect screen{at.x, at.y - 11, 16, 12};
  canvas.stroke(ui::Shape::roundedRectangle(screen.inset(0.75), 3), ui::Paint::solid(ink), 1.5);
  canvas.fill(ui::Shape::roundedRectangle({at.x + 4, at.y - 3.75, 8, 2}, 1), ui::Paint::solid(ink));
}

/// The frame of an icon; `position` counts from the clock to the left.
ui::Rect iconFrame(const ui::Rect& displayFrame, int position) {
  return rectOf(desk::StatusBar::place(rectOf(displayFrame), position));
}

/// The area of the status item, which is highlighted while its menu is open.
ui::Rect statusItemFrame(const ui::Rect& displayFrame) {
  return rectOf(desk::StatusBar::itemFrame(rectOf(displayFrame)));
}

/// Whether the menu under the status icon is open on this display.
bool isMenuOpen(const DesktopScene& scene, std::size_t displayIndex) {
  const desk::WindowServer* const server = desk::WindowServer::of(scene.machine);
  return server != nullptr && server->menus.isStatusMenuOpen() &&
         server->menus.displayIndex() == displayIndex;
}

}  // namespace

void paintMenuBarLayer(const DesktopScene& scene, const DisplayCanvas& display) {
  const bool isDark = scene.machine.appearance.isDark;
  const ui::Rect& frame = display.frame;
  desk::CairoCanvas& canvas = display.canvas;
  const ui::Rect bar{frame.x, frame.y, frame.width, height};
  paintGlass(canvas, ui::Shape::rectangle(bar), menuBarGlassSigma,
             tintFor(scene.machine.appearance,
                     isDark ? ui::Rgba{0.09, 0.09, 0.12, 0.7} : ui::Rgba{0.98, 0.98, 1, 0.66}),
             display.glass);
  canvas.fill(ui::Shape::rectangle({bar.x, bar.bottom() - 0.5, bar.width, 0.5}),
              ui::Paint::solid({0, 0, 0, isDark ? 0.5 : 0.12}));

  const ui::Rgba ink = isDark ? ui::Rgba{1, 1, 1, 0.92} : ui::Rgba{0, 0, 0, 0.85};
  paintMark(canvas, {frame.x + sideMargin, frame.y + baseline + 0.5}, ink);
  double x = frame.x + sideMargin + 16 + titleSpacing;
  for (const char* const title : titles) {
    const ui::Font face = title == titles.front() ? font.bold() : font;
    canvas.text(title, face, ink, {x, frame.y + baseline});
    x += display.resources.shaper.measure(title, face).width + titleSpacing;
  }

  const std::string clock = menuClockText(scene.machine.clock);
  const double clockWidth = display.resources.shaper.measure(clock, font).width;
  canvas.text(clock, font, ink, {frame.right() - sideMargin - clockWidth, frame.y + baseline});
  canvas.symbol("battery.100", ui::Font::system(13), ink, iconFrame(frame, 0));
  canvas.symbol("wifi", ui::Font::system(13, ui::Weight::medium), ink, iconFrame(frame, 1));
  if (isMenuOpen(scene, display.displayIndex)) {
    canvas.fill(ui::Shape::roundedRectangle(statusItemFrame(frame).inset(1), 5),
                ui::Paint::solid(isDark ? ui::Rgba{1, 1, 1, 0.22} : ui::Rgba{0, 0, 0, 0.14}));
  }
  if (scene.statusSymbol) {
    canvas.symbol(*scene.statusSymbol, ui::Font::system(14, ui::Weight::medium), ink,
                  statusItemFrame(frame));
  }
}

}  // namespace orvane::showroom
