// The display that the surface is on is painted with nothing else on it, and the frame cut out.
#include "showroom/desktop/SurfacePicture.hpp"

#include <cmath>

#include "desk/canvas/CairoPointers.hpp"
#include "desk/canvas/PngFile.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/DesktopPicture.hpp"

namespace orvane::showroom {

namespace {

/// In global coordinates; none when there is no such surface.
std::optional<CGRect> frameOf(desk::WindowServer& server, const std::string& surface) {
  if (surface == desk::Surfaces::menu) {
    server.menus.layOut();
    return server.menus.isOpen() ? std::optional(server.menus.frame()) : std::nullopt;
  }
  const auto window = desk::Surfaces(server).window(surface);
  return window != nullptr ? std::optional(server.machine().displays.flipped(window->frame))
                           : std::nullopt;
}

desk::SurfacePointer cut(cairo_surface_t* whole, double x, double y, double width, double height) {
  desk::SurfacePointer part(cairo_image_surface_create(CAIRO_FORMAT_ARGB32,
                                                       static_cast<int>(std::ceil(width)),
                                                       static_cast<int>(std::ceil(height))));
  const desk::ContextPointer context(cairo_create(part.get()));
  cairo_set_source_surface(context.get(), whole, -std::round(x), -std::round(y));
  cairo_paint(context.get());
  return part;
}

}  // namespace

std::optional<std::string> writeSurfacePicture(const desk::Machine& machine,
                                               const desk::ApplicationHost& application,
                                               const std::string& surface,
                                               const std::filesystem::path& file, double scale) {
  desk::WindowServer* const server = desk::WindowServer::of(machine);
  const auto frame = server != nullptr ? frameOf(*server, surface) : std::nullopt;
  if (!frame) {
    return "there is no surface \"" + surface + "\"";
  }
  desk::DrawingResources resources;
  DesktopPainter painter(resources);
  DesktopScene scene(machine, application);
  scene.onlySurface = surface;
  const desk::SurfacePointer whole = renderDesktop(painter, scene, DesktopStyle::exact, scale);
  if (whole == nullptr) {
    return "a picture at this scale would be too small or too large";
  }
  const DesktopLayout layout(machine.displays.globalFrames(), DesktopStyle::exact, scale);
  const CGPoint middle{CGRectGetMidX(*frame), CGRectGetMidY(*frame)};
  const auto screen = machine.displays.indexContaining(middle);
  const ui::Point corner = layout.pixel(screen.value_or(0), frame->origin);
  const desk::SurfacePointer part =
      cut(whole.get(), corner.x, corner.y, frame->size.width * scale, frame->size.height * scale);
  if (!desk::writePng(part.get(), file)) {
    return "cannot write " + file.string();
  }
  return std::nullopt;
}

}  // namespace orvane::showroom
