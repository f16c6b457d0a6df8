// A window without a background is painted as a layer, so that its content casts the shadow.
#include "showroom/desktop/WindowArt.hpp"

#include <array>
#include <cmath>

#include "Orvane/ui/draw/Color.hpp"

namespace orvane::showroom {

namespace {

constexpr ui::PaintShadow windowShadow{{0, 0, 0, 0.34}, 36, {0, 12}};
constexpr double rimWidth = 0.5;
constexpr double titleBaseline = 18.5;

ui::Shape placed(ui::Shape shape, ui::Point corner) {
  shape.rect = shape.rect.movedBy(corner);
  return shape;
}

/// Whether the window's silhouette is its outline, not that of its content.
bool fillsItsOutline(const desk::DeskWindow& window) {
  return !window.hasClearBackground || (window.content != nullptr && window.content->hasBackdrop);
}

ui::Rgba backgroundColor(const desk::WindowServer& server) {
  ui::Appearance appearance;
  appearance.dark = server.machine().appearance.isDark;
  return ui::standardColor(ui::SystemColor::windowBackground, appearance);
}

/// The close button, red in the key window, and the two disabled ones beside it.
void paintTitleButtons(desk::CairoCanvas& canvas, const desk::WindowServer& server,
                       const desk::DeskWindow& window, ui::Point corner) {
  constexpr double spacing = 20;
  const auto close = window.closeButton();
  if (!close) {
    return;
  }
  const bool isDark = server.machine().appearance.isDark;
  const bool isKey = server.focus.keyReceiver().get() == &window;
  const ui::Rgba idle = isDark ? ui::Rgba{1, 1, 1, 0.2} : ui::Rgba{0, 0, 0, 0.14};
  const ui::Rgba red{1, 0.37, 0.34, 1};
  const std::array<ui::Rgba, 3> colors{isKey ? red : idle, idle, idle};
  ui::Rect button = close->movedBy(corner);
  for (const ui::Rgba& color : colors) {
    canvas.fill(ui::Shape::ellipse(button), ui::Paint::solid(color));
    button.x += spacing;
  }
}

void paintTitleBar(desk::CairoCanvas& canvas, desk::WindowServer& server,
                   const desk::DeskWindow& window, ui::Point corner) {
  const bool isDark = server.machine().appearance.isDark;
  if (!window.hasTransparentTitlebar) {
    canvas.fill(
        ui::Shape::rectangle({corner.x, corner.y + desk::DeskWindow::titleBarHeight - rimWidth,
                              window.frame.size.width, rimWidth}),
        ui::Paint::solid(isDark ? ui::Rgba{1, 1, 1, 0.14} : ui::Rgba{0, 0, 0, 0.14}));
  }
  paintTitleButtons(canvas, server, window, corner);
  if (!window.isTitleHidden && !window.title.empty()) {
    const ui::Font font = ui::Font::system(13, ui::Weight::semibold);
    const double width = server.resources().shaper.measure(window.title, font).width;
    canvas.text(window.title, font, isDark ? ui::Rgba{1, 1, 1, 0.85} : ui::Rgba{0, 0, 0, 0.8},
                {corner.x + (window.frame.size.width - width) / 2, corner.y + titleBaseline});
  }
}

void paintContent(desk::CairoCanvas& canvas, desk::WindowServer& server, desk::DeskWindow& window,
                  ui::Point corner) {
  if (window.content == nullptr) {
    return;
  }
  const double top = window.frame.size.height - window.contentFrame().size.height;
  paintView(canvas, server, *window.content, {corner.x, corner.y + top});
}

}  // namespace

ui::Rgba glassTint(bool isDark) {
  // Opaque enough for text over a white background in dark mode and a black one in light mode.
  return isDark ? ui::Rgba{0.06, 0.06, 0.075, 0.93} : ui::Rgba{0.97, 0.97, 0.98, 0.91};
}

ui::Rgba menuTint(bool isDark) {
  return isDark ? ui::Rgba{0.17, 0.17, 0.185, 0.92} : glassTint(isDark);
}

void paintMenuEdge(desk::CairoCanvas& canvas, const ui::Shape& shape, bool isDark) {
  const double hairline = 1 / canvas.scaleFactor();
  canvas.stroke(shape.inset(-hairline / 2), ui::Paint::solid({0, 0, 0, isDark ? 0.6 : 0.16}),
                hairline);
  if (isDark) {
    canvas.stroke(shape.inset(hairline / 2), ui::Paint::solid({1, 1, 1, 0.22}), hairline);
  }
}

void paintView(desk::CairoCanvas& canvas, desk::WindowServer& server, desk::HostedView& view,
               ui::Point corner) {
  const auto kept = view.shared_from_this();
  view.update();
  const desk::DeepSurface* const picture =
      view.picture.of(view.host(), canvas.scaleFactor(), server.resources());
  if (picture == nullptr) {
    return;
  }
  canvas.picture(*picture, corner);
}

void paintWindow(desk::CairoCanvas& canvas, desk::WindowServer& server, desk::DeskWindow& window,
                 GlassCache& glass) {
  const CGPoint topLeft = server.topLeftOf(window);
  const ui::Point corner{topLeft.x, topLeft.y};
  const ui::Shape outline = placed(window.outline(), corner);
  if (!fillsItsOutline(window)) {
    canvas.beginLayer(outline.rect, 1,
                      window.hasShadow ? std::optional(windowShadow) : std::nullopt);
    paintContent(canvas, server, window, corner);
    canvas.endLayer();
    return;
  }
  const bool isDark = server.machine().appearance.isDark;
  if (window.hasShadow) {
    canvas.shadow(outline, windowShadow);
  }
  if (window.content != nullptr && window.content->hasBackdrop) {
    paintGlass(canvas, outline, windowGlassSigma,
               tintFor(server.machine().appearance, glassTint(isDark)), glass);
  } else {
    canvas.fill(outline, ui::Paint::solid(backgroundColor(server)));
  }
  canvas.save();
  canvas.clip(outline);
  paintContent(canvas, server, window, corner);
  if (window.hasStyle(appkit::StyleMask::titled)) {
    paintTitleBar(canvas, server, window, corner);
  }
  canvas.restore();
  canvas.stroke(outline.inset(-rimWidth / 2), ui::Paint::solid({0, 0, 0, isDark ? 0.6 : 0.16}),
                rimWidth);
}

}  // namespace orvane::showroom
