// Compares the looks of the session before it draws.
#include "desk/window/WindowPicture.hpp"

#include <algorithm>

#include "desk/desktop/MenuClock.hpp"
#include "desk/window/StripPainter.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

namespace {

/// A pointer of a Mac's size would be lost on screens that are shown smaller than they are.
double pointerMagnification(double pixelsPerPoint, double pixelRatio) {
  return std::clamp(1.1 * pixelRatio / pixelsPerPoint, 1.0, 4.0);
}

}  // namespace

WindowPicture::Looks WindowPicture::looksOf(const DeskSession& session, bool isMouseHeld) {
  const Machine& machine = session.machine();
  const DesktopScene scene = session.scene();
  Looks looks;
  looks.strip = StripContent::of(session, isMouseHeld);
  looks.clock = menuClockText(machine.clock);
  const CGRect dock = machine.dock.frame();
  looks.places = {machine.pointer.place().x,
                  machine.pointer.place().y,
                  dock.origin.x,
                  dock.origin.y,
                  dock.size.width,
                  dock.size.height,
                  machine.dock.shownFraction()};
  if (scene.movedBack) {
    looks.places.insert(looks.places.end(), {scene.movedBack->from.x, scene.movedBack->from.y,
                                             scene.movedBack->strength});
  }
  looks.zones = scene.zones;
  looks.displayChanges = machine.displays.changeCount();
  looks.wallpaper = machine.appearance.wallpaper;
  looks.statusSymbol = scene.statusSymbol;
  looks.showsZones = scene.showsZones;
  if (const WindowServer* const server = WindowServer::of(machine)) {
    looks.windowChanges = server->updates.changeCount();
  }
  return looks;
}

bool WindowPicture::isOutdated(const DeskSession& session, bool isMouseHeld) const {
  return !drawn_ || !(*drawn_ == looksOf(session, isMouseHeld));
}

void WindowPicture::draw(cairo_surface_t* surface, const WindowLayout& layout,
                         const DeskSession& session, bool isMouseHeld) {
  drawn_ = looksOf(session, isMouseHeld);
  ++drawnCount_;
  const DesktopLayout desktop = layout.desktopLayout(session.machine().displays.globalFrames());
  DesktopScene scene = session.scene();
  scene.pointerMagnification = pointerMagnification(desktop.scale(), layout.pixelRatio);
  painter_.paint(surface, desktop, scene);

  CairoCanvas canvas(surface, layout.pixelRatio, resources_);
  const double ratio = layout.pixelRatio;
  paintStrip(canvas, resources_,
             {layout.strip.x / ratio, layout.strip.y / ratio, layout.strip.width / ratio,
              layout.strip.height / ratio},
             drawn_->strip);
}

}  // namespace orvane::desk
