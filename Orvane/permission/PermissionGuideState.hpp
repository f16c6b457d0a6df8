// The state of the permission guide.
#pragma once

namespace orvane {

enum class PermissionGuideState {
  /// Polling; the permission has not been detected yet.
  checking,
  /// Detected; the guide is about to close.
  success,
  /// Not detected within ten seconds; polling continues.
  timeout,
};

}  // namespace orvane
