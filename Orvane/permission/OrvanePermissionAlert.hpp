// The modal alert that asks whether to open the system's settings for the Accessibility permission.
#pragma once

#include <functional>

#include "Orvane/permission/OrvaneAccessibilityPermissionAlertView.hpp"
#include "Orvane/platform/Quartz.hpp"

namespace orvane {

/// Static members only. Main thread only.
class OrvanePermissionAlert {
 public:
  /// In points.
  static constexpr CGSize contentSize{OrvaneAccessibilityPermissionAlertView::width, 372};

  OrvanePermissionAlert() = delete;

  /// Shows the alert after the caller has returned. When the user agrees, it opens the settings
  /// and, two seconds later, the guide, which calls `onGranted`, which may be null.
  static void show(std::function<void()> onGranted);
};

}  // namespace orvane
