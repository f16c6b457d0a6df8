// Checks the Accessibility permission, asks the user for it, and opens the system's settings for
// it.
#pragma once

#include <functional>

namespace orvane {

/// Static members only. Main thread only.
class OrvaneAccessibilityPermission {
 public:
  OrvaneAccessibilityPermission() = delete;

  /// Calls `onGranted` at once when the permission is granted. Otherwise asks the user and calls
  /// `onGranted` at most once: when the guide, open for this request, detects the permission. The
  /// callback is dropped when the user declines or closes the guide first, when the guide is shown
  /// for a later request, and when this request comes within a second of another prompt.
  /// `onGranted` may be null.
  static void check(std::function<void()> onGranted);

  /// Opens the Accessibility page of the privacy settings by the first link that the system
  /// accepts, or System Settings itself.
  static void openSystemSettings();

  /// Whether further requests are dropped because the user was asked within the last second.
  [[nodiscard]] static bool isChecking();

  /// Asks the user. Without a prompt, a request is dropped.
  using Prompt = std::function<void(std::function<void()> onGranted)>;
  static void setPrompt(Prompt prompt);

 private:
  static void showPermissionAlert(std::function<void()> onGranted);
};

}  // namespace orvane
