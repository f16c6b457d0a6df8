// The menu is painted with the metrics of its layout.
#include "Orvane/ui/draw/Color.hpp"
#include "desk/windows/MenuMetrics.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/DesktopLayers.hpp"
#include "showroom/desktop/Glass.hpp"
#include "showroom/desktop/Rects.hpp"
#include "showroom/desktop/WindowArt.hpp"

namespace orvane::showroom {

namespace {

constexpr ui::PaintShadow menuShadow{{0, 0, 0, 0.28}, 20, {0, 6}};
constexpr double menuGlassSigma = 16;
constexpr double sideInset = 5;

ui::Rgba ink(const desk::Machine& machine, double opacity) {
  return machine.appearance.isDark ? ui::Rgba{1, 1, 1, opacity} : ui::Rgba{0, 0, 0, opacity};
}

ui::Rgba resolved(const desk::Machine& machine, const ui::Color& color) {
  return color.resolve(desk::HostedView::appearanceOf(machine), ui::standardColor);
}

void paintRow(desk::CairoCanvas& canvas, desk::WindowServer& server, const desk::MenuRow& row) {
  const appkit::MenuItem& item = server.menus.menu()->items[row.itemIndex];
  const ui::Rect frame = rectOf(row.frame);
  const bool isHighlighted = server.menus.highlighted() == row.itemIndex;
  const ui::Shape highlight =
      ui::Shape::roundedRectangle(frame.inset(ui::Edges::horizontal(sideInset)), 5);
  if (row.view != nullptr) {
    if (isHighlighted) {
      // The same highlight as that of a hovered row.
      canvas.fill(ui::Shape::roundedRectangle(frame.inset(ui::Edges::symmetric(3, 2)), 6),
                  ui::Paint::solid(ink(server.machine(), 0.08)));
    }
    paintView(canvas, server, *row.view, frame.origin());
    return;
  }
  if (item.isSeparator) {
    canvas.fill(ui::Shape::rectangle({frame.x + 10, frame.center().y - 0.5, frame.width - 20, 1}),
                ui::Paint::solid(ink(server.machine(), 0.14)));
    return;
  }
  if (isHighlighted) {
    canvas.fill(highlight,
                ui::Paint::solid(resolved(server.machine(), ui::Color::accent().buttonFill())));
  }
  const ui::Rgba color = isHighlighted
                             ? resolved(server.machine(), ui::Color::accent().buttonLabel())
                             : ink(server.machine(), item.isEnabled ? 0.85 : 0.26);
  if (server.menus.menu()->checkedIndex == static_cast<int>(row.itemIndex)) {
    canvas.symbol("checkmark", ui::Font::system(11, ui::Weight::semibold), color,
                  {frame.x + 8, frame.y + 4, 14, 14});
  }
  canvas.text(item.title, desk::MenuMetrics::font, color,
              {frame.x + desk::MenuMetrics::titleInset, frame.y + desk::MenuMetrics::baseline});
}

void paintMenu(desk::CairoCanvas& canvas, desk::WindowServer& server, GlassCache& glass) {
  server.menus.layOut();
  const bool isDark = server.machine().appearance.isDark;
  const ui::Shape shape =
      ui::Shape::roundedRectangle(rectOf(server.menus.frame()), desk::MenuMetrics::cornerRadius);
  canvas.shadow(shape, menuShadow);
  paintGlass(canvas, shape, menuGlassSigma, tintFor(server.machine().appearance, menuTint(isDark)),
             glass);
  for (const desk::MenuRow& row : server.menus.rows()) {
    paintRow(canvas, server, row);
  }
  paintMenuEdge(canvas, shape, isDark);
}

void paintTooltip(desk::CairoCanvas& canvas, desk::WindowServer& server, const ui::Rect& screen) {
  const desk::Tooltips::Shown& shown = *server.tooltips.shown();
  const ui::Font font = ui::Font::system(11);
  const double width = server.resources().shaper.measure(shown.text, font).width + 12;
  const double x = std::min(shown.place.x, screen.right() - width - 4);
  const ui::Rect frame{x, shown.place.y + 22, width, 19};
  const bool isDark = server.machine().appearance.isDark;
  const ui::Shape shape = ui::Shape::roundedRectangle(frame, 4);
  canvas.shadow(shape, {{0, 0, 0, 0.25}, 6, {0, 2}});
  canvas.fill(shape, ui::Paint::solid(isDark ? ui::Rgba{0.2, 0.2, 0.21, 1}
                                             : ui::Rgba{0.95, 0.95, 0.95, 1}));
  paintMenuEdge(canvas, shape, isDark);
  canvas.text(shown.text, font, ink(server.machine(), 0.85), {frame.x + 6, frame.y + 13.5});
}

constexpr double imageOpacity = 0.7;
constexpr ui::Rgba green{0.16, 0.76, 0.25, 1};

/// A plus in a disc below the pointer.
void paintCopyMark(desk::CairoCanvas& canvas, const CGPoint& place) {
  constexpr double side = 17;
  constexpr double armLength = 9;
  constexpr double armWidth = 2;
  const ui::Rect disc{place.x + 12, place.y + 14, side, side};
  const double middleX = disc.x + side / 2;
  const double middleY = disc.y + side / 2;
  const auto paintArm = [&](double width, double height) {
    canvas.fill(ui::Shape::rectangle({middleX - width / 2, middleY - height / 2, width, height}),
                ui::Paint::solid({1, 1, 1, 1}));
  };
  canvas.shadow(ui::Shape::ellipse(disc), {{0, 0, 0, 0.3}, 3, {0, 1}});
  canvas.fill(ui::Shape::ellipse(disc), ui::Paint::solid(green));
  paintArm(armLength, armWidth);  // NOLINT(readability-suspicious-call-argument)
  paintArm(armWidth, armLength);
}

/// The file's image at the pointer, with a green copy mark over a drop target.
void paintFileDrag(desk::CairoCanvas& canvas, desk::WindowServer& server) {
  const desk::FileDrag& drag = *server.pointer.fileDrag();
  const CGPoint place = server.machine().pointer.location();
  const ui::Rect image = drag.image.movedBy({place.x, place.y});
  canvas.beginLayer(image, imageOpacity, std::nullopt);
  canvas.image(drag.imageName, image);
  canvas.endLayer();
  if (server.pointer.canDropHere()) {
    paintCopyMark(canvas, place);
  }
}

}  // namespace

void paintOpenMenuLayer(const DesktopScene& scene, const DisplayCanvas& display) {
  desk::WindowServer* const server = desk::WindowServer::of(scene.machine);
  if (server == nullptr) {
    return;
  }
  const bool isWanted = !scene.onlySurface || *scene.onlySurface == desk::Surfaces::menu;
  if (server->menus.isOpen() && isWanted && server->menus.displayIndex() == display.displayIndex) {
    paintMenu(display.canvas, *server, display.glass);
  }
  const auto& tooltip = server->tooltips.shown();
  if (tooltip && !scene.onlySurface &&
      display.frame.contains({tooltip->place.x, tooltip->place.y})) {
    paintTooltip(display.canvas, *server, display.frame);
  }
  if (server->pointer.fileDrag() && !scene.onlySurface) {
    paintFileDrag(display.canvas, *server);
  }
}

}  // namespace orvane::showroom
