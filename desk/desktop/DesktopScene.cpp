// Reads from the application what its presence on the desktop is.
#include "desk/desktop/DesktopScene.hpp"

#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

DesktopScene::DesktopScene(const Machine& shownMachine, const ApplicationHost& application)
    : machine(shownMachine) {
  if (application.isRunning()) {
    const WindowServer* const server = WindowServer::of(shownMachine);
    const StatusBarItem* const item = server != nullptr ? server->statusBar.item() : nullptr;
    if (item != nullptr && item->image != nullptr) {
      statusSymbol = item->image->name;
    }
    zones = application.snapshot().guard.zones;
  }
}

}  // namespace orvane::desk
