// Compares all inputs of the drawing with those of the last one.
#include "showroom/window/WindowPicture.hpp"

#include <algorithm>

#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/MenuClock.hpp"

namespace orvane::showroom {

namespace {

/// Enlarges the pointer on screens that are scaled down.
double pointerMagnification(double pixelsPerPoint, double pixelRatio) {
  return std::clamp(1.1 * pixelRatio / pixelsPerPoint, 1.0, 4.0);
}

}  // namespace

WindowPicture::Inputs WindowPicture::inputsOf(const DeskSession& session, bool isMouseHeld) const {
  const desk::Machine& machine = session.machine();
  const DesktopScene scene = session.scene();
  Inputs inputs;
  inputs.panel = session.hardwareContent(isMouseHeld);
  inputs.panelChanges = panel_.changeCount();
  inputs.clock = menuClockText(machine.clock);
  const CGRect dock = machine.dock.frame();
  inputs.places = {machine.pointer.location().x,
                   machine.pointer.location().y,
                   dock.origin.x,
                   dock.origin.y,
                   dock.size.width,
                   dock.size.height,
                   machine.dock.shownFraction()};
  if (scene.movedBack) {
    inputs.places.insert(inputs.places.end(), {scene.movedBack->from.x, scene.movedBack->from.y,
                                               scene.movedBack->strength});
  }
  inputs.zones = scene.zones;
  inputs.displayChanges = machine.displays.changeCount();
  inputs.wallpaper = machine.appearance.wallpaper;
  inputs.statusSymbol = scene.statusSymbol;
  if (const desk::WindowServer* const server = desk::WindowServer::of(machine)) {
    inputs.windowChanges = server->updates.changeCount();
  }
  return inputs;
}

bool WindowPicture::isOutdated(const DeskSession& session, bool isMouseHeld) const {
  return !drawn_ || panel_.host().nextFrameWanted() || !(*drawn_ == inputsOf(session, isMouseHeld));
}

void WindowPicture::draw(cairo_surface_t* surface, const WindowLayout& layout,
                         const DeskSession& session, bool isMouseHeld) {
  const double ratio = layout.pixelRatio;
  panel_.setSize({layout.panel.width / ratio, layout.panel.height / ratio});
  panel_.show(session.hardwareContent(isMouseHeld));
  drawn_ = inputsOf(session, isMouseHeld);
  const DesktopLayout desktop = layout.desktopLayout(session.machine().displays.globalFrames());
  DesktopScene scene = session.scene();
  scene.pointerMagnification = pointerMagnification(desktop.scale(), ratio);
  painter_.paint(surface, desktop, scene);

  desk::CairoCanvas canvas(surface, ratio, resources_);
  panel_.paint(canvas, {layout.panel.x / ratio, layout.panel.y / ratio});
}

}  // namespace orvane::showroom
