// Compares the looks of the session before it draws.
#include "showroom/window/WindowPicture.hpp"

#include <algorithm>

#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/MenuClock.hpp"

namespace orvane::showroom {

namespace {

/// A pointer of a Mac's size would be lost on screens that are shown smaller than they are.
double pointerMagnification(double pixelsPerPoint, double pixelRatio) {
  return std::clamp(1.1 * pixelRatio / pixelsPerPoint, 1.0, 4.0);
}

}  // namespace

WindowPicture::Looks WindowPicture::looksOf(const DeskSession& session, bool isMouseHeld) const {
  const desk::Machine& machine = session.machine();
  const DesktopScene scene = session.scene();
  Looks looks;
  looks.panel = session.hardwareContent(isMouseHeld);
  looks.panelChanges = panel_.changeCount();
  looks.clock = menuClockText(machine.clock);
  const CGRect dock = machine.dock.frame();
  looks.places = {machine.pointer.location().x,
                  machine.pointer.location().y,
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
  if (const desk::WindowServer* const server = desk::WindowServer::of(machine)) {
    looks.windowChanges = server->updates.changeCount();
  }
  return looks;
}

bool WindowPicture::isOutdated(const DeskSession& session, bool isMouseHeld) const {
  return !drawn_ || panel_.host().nextFrameWanted() || !(*drawn_ == looksOf(session, isMouseHeld));
}

void WindowPicture::draw(cairo_surface_t* surface, const WindowLayout& layout,
                         const DeskSession& session, bool isMouseHeld) {
  const double ratio = layout.pixelRatio;
  panel_.setSize({layout.panel.width / ratio, layout.panel.height / ratio});
  panel_.show(session.hardwareContent(isMouseHeld));
  drawn_ = looksOf(session, isMouseHeld);
  ++drawnCount_;
  const DesktopLayout desktop = layout.desktopLayout(session.machine().displays.globalFrames());
  DesktopScene scene = session.scene();
  scene.pointerMagnification = pointerMagnification(desktop.scale(), ratio);
  painter_.paint(surface, desktop, scene);

  desk::CairoCanvas canvas(surface, ratio, resources_);
  panel_.paint(canvas, {layout.panel.x / ratio, layout.panel.y / ratio});
}

}  // namespace orvane::showroom
