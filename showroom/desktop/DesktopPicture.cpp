// Renders into a surface of its own and encodes that.
#include "showroom/desktop/DesktopPicture.hpp"

#include <cmath>

#include "desk/canvas/PngFile.hpp"

namespace orvane::showroom {

namespace {

constexpr double longestSideInPixels = 16384;

}  // namespace

desk::SurfacePointer renderDesktop(DesktopPainter& painter, const DesktopScene& scene,
                                   DesktopStyle style, double scale) {
  const auto& frames = scene.machine.displays.globalFrames();
  const ui::Size size = DesktopLayout::sizeInPoints(frames, style);
  // Written so that a scale that is not a number is refused too.
  const double longest = std::max(size.width, size.height) * scale;
  const double shortest = std::min(size.width, size.height) * scale;
  if (!(longest <= longestSideInPixels) || !(shortest >= 1)) {
    return nullptr;
  }
  const DesktopLayout layout(frames, style, scale);
  desk::SurfacePointer surface(cairo_image_surface_create(
      CAIRO_FORMAT_ARGB32, layout.pixels().width, layout.pixels().height));
  painter.paint(surface.get(), layout, scene);
  return surface;
}

std::optional<std::string> writeDesktopPicture(const desk::Machine& machine,
                                               const desk::ApplicationHost& application,
                                               const std::filesystem::path& file, double scale) {
  if (machine.displays.isEmpty()) {
    return "there is no display to make a picture of";
  }
  desk::DrawingResources resources;
  DesktopPainter painter(resources);
  const desk::SurfacePointer surface =
      renderDesktop(painter, DesktopScene(machine, application), DesktopStyle::exact, scale);
  if (surface == nullptr) {
    return "a picture at this scale would be too small or too large";
  }
  if (!desk::writePng(surface.get(), file)) {
    return "cannot write " + file.string();
  }
  return std::nullopt;
}

}  // namespace orvane::showroom
