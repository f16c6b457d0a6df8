// A picture of one surface is cropped from one of the desktop that shows only that surface.
#include "showroom/desktop/DesktopPicture.hpp"

#include <cmath>

#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/PngFile.hpp"
#include "desk/hand/InQuotes.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::showroom {

namespace {

constexpr double maximumSideInPixels = 16384;

/// The part of the whole desktop's picture that a frame in global coordinates covers.
desk::SurfacePointer cropped(cairo_surface_t* whole, const desk::Displays& displays,
                             const CGRect& frame, double scale) {
  const DesktopLayout layout(displays.globalFrames(), DesktopStyle::exact, scale);
  const auto screen = displays.indexContaining({CGRectGetMidX(frame), CGRectGetMidY(frame)});
  const ui::Point corner = layout.pixel(screen.value_or(0), frame.origin);
  return desk::partOf(whole, static_cast<int>(std::round(corner.x)),
                      static_cast<int>(std::round(corner.y)),
                      static_cast<int>(std::ceil(frame.size.width * scale)),
                      static_cast<int>(std::ceil(frame.size.height * scale)));
}

}  // namespace

desk::SurfacePointer renderDesktop(DesktopPainter& painter, const DesktopScene& scene,
                                   DesktopStyle style, double scale) {
  const auto& frames = scene.machine.displays.globalFrames();
  const ui::Size size = DesktopLayout::sizeInPoints(frames, style);
  // The negations also reject a scale that is not a number.
  const double longest = std::max(size.width, size.height) * scale;
  const double shortest = std::min(size.width, size.height) * scale;
  if (!(longest <= maximumSideInPixels) || !(shortest >= 1)) {
    return nullptr;
  }
  const DesktopLayout layout(frames, style, scale);
  desk::SurfacePointer surface = desk::imageSurface(layout.pixels().width, layout.pixels().height);
  painter.paint(surface.get(), layout, scene);
  return surface;
}

std::optional<std::string> writePicture(const desk::Machine& machine,
                                        const desk::ApplicationHost& application,
                                        const std::filesystem::path& file, double scale,
                                        const std::optional<std::string>& surface) {
  std::optional<CGRect> frame;
  if (surface) {
    desk::WindowServer* const server = desk::WindowServer::of(machine);
    frame = server != nullptr ? desk::Surfaces(*server).frame(*surface) : std::nullopt;
    if (!frame) {
      return "there is no surface " + desk::inQuotes(*surface);
    }
  } else if (machine.displays.isEmpty()) {
    return "there is no display to make a picture of";
  }
  desk::DrawingResources resources;
  DesktopPainter painter(resources);
  DesktopScene scene(machine, application);
  scene.onlySurface = surface;
  desk::SurfacePointer picture = renderDesktop(painter, scene, DesktopStyle::exact, scale);
  if (picture == nullptr) {
    return "a picture at this scale would be too small or too large";
  }
  if (frame) {
    picture = cropped(picture.get(), machine.displays, *frame, scale);
  }
  if (!desk::writePng(picture.get(), file)) {
    return "cannot write " + file.string();
  }
  return std::nullopt;
}

}  // namespace orvane::showroom
