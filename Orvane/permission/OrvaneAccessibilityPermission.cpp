// Checks the Accessibility permission, asks the user for it, and opens the system's settings for
// it.
#include "Orvane/permission/OrvaneAccessibilityPermission.hpp"

#include <utility>

#include "Orvane/base/Lifetime.hpp"
#include "Orvane/base/ProcessShared.hpp"
#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/SystemSettingsLinks.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"

namespace orvane {

namespace {

/// For this long after a prompt, further requests are dropped.
constexpr double repeatedRequestSeconds = 1.0;

struct CheckState {
  bool isChecking = false;
  OrvaneAccessibilityPermission::Prompt prompt;
  Lifetime lifetime;
};

CheckState& checkState() {
  static ProcessShared<CheckState> shared;
  return shared.get();
}

}  // namespace

void OrvaneAccessibilityPermission::check(std::function<void()> onGranted) {
  if (AXIsProcessTrusted()) {
    if (onGranted) {
      onGranted();
    }
    return;
  }
  CheckState& state = checkState();
  if (state.isChecking) {
    return;
  }
  state.isChecking = true;
  appkit::MainQueue::asyncAfter(repeatedRequestSeconds,
                                state.lifetime.whileAlive([&state] { state.isChecking = false; }));
  showPermissionAlert(std::move(onGranted));
}

void OrvaneAccessibilityPermission::showPermissionAlert(std::function<void()> onGranted) {
  if (const Prompt& prompt = checkState().prompt) {
    prompt(std::move(onGranted));
  }
}

void OrvaneAccessibilityPermission::openSystemSettings() {
  openSystemSettingsByFirstOf(
      {"x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension"
       "?Privacy_Accessibility",
       "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility",
       "x-apple.systempreferences:com.apple.preference.security"});
}

bool OrvaneAccessibilityPermission::isChecking() {
  return checkState().isChecking;
}

void OrvaneAccessibilityPermission::setPrompt(Prompt prompt) {
  checkState().prompt = std::move(prompt);
}

}  // namespace orvane
