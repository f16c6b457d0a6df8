// Reads each part of the application once.
#include "Orvane/app/OrvaneSnapshot.hpp"

#include "Orvane/app/OrvaneAppState.hpp"

namespace orvane {

OrvaneSnapshot OrvaneSnapshot::current() {
  OrvaneModel& model = OrvaneAppState::model();
  return {.guard = model.guardService().snapshot(),
          .mode = model.mode(),
          .status = model.status(),
          .displays = model.displays().value(),
          .selectedDisplayID = model.selectedDisplayID().value(),
          .selectedDisplay = model.selectedDisplay(),
          .hasAccessibilityPermission = model.hasAccessibilityPermission().value(),
          .isPermissionStale = model.isPermissionStale(),
          .isRestoreBlocked = model.isRestoreBlocked(),
          .isTemporarilyUnlocked = model.isTemporarilyUnlocked().value(),
          .lastRestoreSucceeded = model.lastRestoreSucceeded().value(),
          .lastCheckedAt = model.lastCheckedAt().value(),
          .appLanguage = model.appLanguage().value(),
          .temporaryUnlockModifier = model.temporaryUnlockModifier().value(),
          .hidesDockOnAllDisplays = model.hidesDockOnAllDisplays().value(),
          .launchAtLoginEnabled = model.launchAtLoginEnabled().value(),
          .launchAtLoginRequiresApproval = model.launchAtLoginRequiresApproval().value(),
          .isLaunchAtLoginBlocked = model.isLaunchAtLoginBlocked(),
          .isLaunchAtLoginFailing = model.isLaunchAtLoginFailing(),
          .launchAtLoginErrorMessage = model.launchAtLoginErrorMessage().value(),
          .guide = OrvanePermissionGuideWindowController::snapshot()};
}

}  // namespace orvane
