// Reads from the application what its presence on the desktop is.
#include "desk/desktop/DesktopScene.hpp"

namespace orvane::desk {

DesktopScene::DesktopScene(const Machine& shownMachine, const ApplicationHost& application)
    : machine(shownMachine) {
  if (application.isRunning()) {
    statusSymbol = application.model().isGuardRunning() ? "lock.fill" : "lock.open";
    zones = application.model().guardService().cachedTriggerZones();
  }
}

}  // namespace orvane::desk
