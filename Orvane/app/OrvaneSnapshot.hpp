// OrvaneSnapshot describes the application's state and windows at one moment, for scripts, the
// desk's window and tests.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Orvane/geometry/DisplaySnapshot.hpp"
#include "Orvane/guard/GuardSnapshot.hpp"
#include "Orvane/guard/OrvaneModifier.hpp"
#include "Orvane/model/OrvaneLanguage.hpp"
#include "Orvane/model/OrvaneMode.hpp"
#include "Orvane/model/OrvaneStatus.hpp"
#include "Orvane/permission/OrvanePermissionGuideWindowController.hpp"
#include "Orvane/platform/Quartz.hpp"

namespace orvane {

/// A plain value; by default that of an application that does not run.
struct OrvaneSnapshot {
  GuardSnapshot guard = {};
  OrvaneMode mode = OrvaneMode::off;
  OrvaneStatus status = OrvaneStatus::unlocked;

  std::vector<DisplaySnapshot> displays = {};
  std::optional<std::string> selectedDisplayID = std::nullopt;
  /// None when that display is not attached.
  std::optional<DisplaySnapshot> selectedDisplay = std::nullopt;
  bool hasAccessibilityPermission = false;
  /// The system refused a tap although the process is trusted.
  bool isPermissionStale = false;
  /// The lock could not be restored at launch, because the permission was missing.
  bool isRestoreBlocked = false;
  bool isTemporarilyUnlocked = false;
  std::optional<bool> lastRestoreSucceeded = std::nullopt;
  /// Seconds by the calendar clock.
  CFAbsoluteTime lastCheckedAt = 0;

  OrvaneLanguage appLanguage = OrvaneLanguage::system;
  OrvaneModifier temporaryUnlockModifier = OrvaneModifier::option;
  bool hidesDockOnAllDisplays = false;
  bool launchAtLoginEnabled = false;
  bool launchAtLoginRequiresApproval = false;
  bool isLaunchAtLoginBlocked = false;
  bool isLaunchAtLoginFailing = false;
  std::optional<std::string> launchAtLoginErrorMessage = std::nullopt;

  OrvanePermissionGuideWindowController::Snapshot guide = {};

  /// The state of the running application. Main thread only.
  [[nodiscard]] static OrvaneSnapshot current();
};

}  // namespace orvane
