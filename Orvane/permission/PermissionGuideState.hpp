// The state of the permission guide.
#pragma once

namespace orvane {

enum class PermissionGuideState {
  /// Polling; the permission has not been detected yet.
  checking,
  /// Detected; the guide is about to close itself.
  success,
  /// Not detected for a while; polling continues.
  timeout,
};

}  // namespace orvane
