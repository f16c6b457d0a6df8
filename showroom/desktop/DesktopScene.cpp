// Reads the status item and the guard's snapshot.
#include "showroom/desktop/DesktopScene.hpp"

#include "desk/windows/WindowServer.hpp"

namespace orvane::showroom {

DesktopScene::DesktopScene(const desk::Machine& shownMachine,
                           const desk::ApplicationHost& application)
    : machine(shownMachine) {
  if (application.isRunning()) {
    const desk::WindowServer* const server = desk::WindowServer::of(shownMachine);
    const desk::StatusBarItem* const item = server != nullptr ? server->statusBar.item() : nullptr;
    if (item != nullptr && item->image != nullptr) {
      statusSymbol = item->image->name;
    }
    zones = application.snapshot().guard.zones;
  }
}

}  // namespace orvane::showroom
