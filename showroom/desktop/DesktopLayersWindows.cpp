// Skips windows whose shadow does not reach the display.
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/DesktopLayers.hpp"
#include "showroom/desktop/WindowArt.hpp"

namespace orvane::showroom {

namespace {

void paintWindows(const DesktopScene& scene, const DisplayCanvas& display, bool areAboveMenuBar) {
  desk::WindowServer* const server = desk::WindowServer::of(scene.machine);
  if (server == nullptr) {
    return;
  }
  for (const auto& window : server->windows()) {
    const bool isAbove = window->level >= appkit::WindowLevel::status;
    const bool isWanted =
        !scene.onlySurface || *scene.onlySurface == desk::Surfaces::nameOf(*window);
    if (!server->isVisible(*window) || !isWanted || isAbove != areAboveMenuBar) {
      continue;
    }
    const CGPoint corner = server->topLeftOf(*window);
    const ui::Rect frame{corner.x, corner.y, window->frame.size.width, window->frame.size.height};
    if (frame.inset(-windowShadowReach).intersects(display.frame)) {
      display.canvas.save();
      paintWindow(display.canvas, *server, *window, display.glass);
      display.canvas.restore();
    }
  }
}

}  // namespace

void paintWindowLayer(const DesktopScene& scene, const DisplayCanvas& display) {
  paintWindows(scene, display, false);
}

void paintHighWindowLayer(const DesktopScene& scene, const DisplayCanvas& display) {
  paintWindows(scene, display, true);
}

}  // namespace orvane::showroom
