// Stands between an action that needs the Accessibility permission and the system: checks it, asks
// for it, and opens the system's settings for it.
#pragma once

#include <functional>

namespace orvane {

/// Static members only. Main thread only.
class OrvaneAccessibilityPermission {
 public:
  OrvaneAccessibilityPermission() = delete;

  /// Calls `onGranted` at once when the permission is there. Otherwise asks the user, and
  /// `onGranted` is called at most once: when the permission is seen while the guide stands open
  /// for this request. It is dropped without a call when the user declines, when the guide is
  /// closed before, when the guide is shown for a later request, and when this request comes
  /// within a second of another one's asking. A null `onGranted` is allowed.
  static void check(std::function<void()> onGranted);

  /// Opens the Accessibility page of the privacy settings by the first link that the system
  /// accepts, or the System Settings themselves.
  static void openSystemSettings();

  /// Whether asking is under way, so that further requests are dropped.
  [[nodiscard]] static bool isChecking();

  /// How the user is asked; handed in by whoever owns the windows. Without one nobody is asked.
  using Prompt = std::function<void(std::function<void()> onGranted)>;
  static void setPrompt(Prompt prompt);

 private:
  static void showPermissionAlert(std::function<void()> onGranted);
};

}  // namespace orvane
