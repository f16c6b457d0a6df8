// The caption has the appearance of the desk.
#include "showroom/tour/TourPicture.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

#include "desk/canvas/ImageSurface.hpp"
#include "showroom/desktop/DesktopLayout.hpp"

namespace orvane::showroom {

namespace {

constexpr int width = 1440;
constexpr int desktopHeight = 560;
constexpr int captionHeight = 56;

void paintCaption(desk::CairoCanvas& canvas, desk::DrawingResources& resources,
                  const ui::Rect& rect, const std::string& number, const std::string& caption,
                  bool isDark) {
  const ui::Rgba ground = isDark ? ui::Rgba{0.125, 0.13, 0.15, 1} : ui::Rgba{1, 1, 1, 1};
  const ui::Rgba ink = isDark ? ui::Rgba{1, 1, 1, 0.92} : ui::Rgba{0, 0, 0, 0.85};
  const ui::Rgba blue = isDark ? ui::Rgba{0.16, 0.56, 1, 1} : ui::Rgba{0, 0.42, 0.9, 1};
  canvas.fill(ui::Shape::rectangle(rect), ui::Paint::solid(ground));
  canvas.fill(ui::Shape::rectangle({rect.x, rect.y, rect.width, 1}),
              ui::Paint::solid({ink.red, ink.green, ink.blue, 0.12}));
  const ui::Rect badge{rect.x + 28, rect.center().y - 14, 38, 28};
  canvas.fill(ui::Shape::capsule(badge), ui::Paint::solid(blue));
  const ui::Font small = ui::Font::system(14, ui::Weight::semibold);
  canvas.text(
      number, small, {1, 1, 1, 1},
      {badge.center().x - resources.shaper.measure(number, small).width / 2, badge.center().y + 5});
  // A long caption is scaled down, not truncated.
  ui::Font font = ui::Font::system(18, ui::Weight::medium);
  const double room = rect.right() - 28 - badge.right() - 16;
  font.size *= std::min(1.0, room / resources.shaper.measure(caption, font).width);
  canvas.text(caption, font, ink, {badge.right() + 16, rect.center().y + font.size * 0.36});
}

}  // namespace

desk::SurfacePointer renderTourPicture(DesktopPainter& painter, desk::DrawingResources& resources,
                                       const DesktopScene& scene, const std::string& number,
                                       const std::string& caption) {
  desk::SurfacePointer surface = desk::imageSurface(width, desktopHeight + captionHeight);
  const DesktopLayout layout =
      DesktopLayout::fitted(scene.machine.displays.globalFrames(), DesktopStyle::monitors,
                            {0, 0, width, desktopHeight}, 1);
  DesktopScene shown = scene;
  // About as large as at full scale.
  shown.pointerMagnification = std::max(1.2 / layout.scale(), 1.0);
  painter.paint(surface.get(), layout, shown);
  desk::CairoCanvas canvas(surface.get(), 1, resources);
  paintCaption(canvas, resources, {0, desktopHeight, width, captionHeight}, number, caption,
               scene.machine.appearance.isDark);
  return surface;
}

desk::SurfacePointer renderCloseUp(DesktopPainter& painter, const DesktopScene& scene,
                                   const CGRect& area) {
  constexpr double scale = 2;
  const auto pixels = [](double points) { return static_cast<int>(std::lround(points * scale)); };
  desk::SurfacePointer surface =
      desk::imageSurface(pixels(area.size.width), pixels(area.size.height), CAIRO_FORMAT_RGB24);
  const std::vector<CGRect>& frames = scene.machine.displays.globalFrames();
  // The origin of the layout is the top left corner of all displays.
  double left = 0;
  double top = 0;
  for (const CGRect& frame : frames) {
    left = std::min(left, frame.origin.x);
    top = std::min(top, frame.origin.y);
  }
  const DesktopLayout layout(frames, DesktopStyle::exact, scale,
                             {pixels(left - area.origin.x), pixels(top - area.origin.y), 0, 0});
  painter.paint(surface.get(), layout, scene);
  return surface;
}

}  // namespace orvane::showroom
