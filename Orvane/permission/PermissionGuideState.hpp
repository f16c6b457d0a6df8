// How far the permission guide has come.
#pragma once

namespace orvane {

enum class PermissionGuideState {
  /// The permission is looked for and has not been seen yet.
  checking,
  /// It was seen; the guide closes itself shortly.
  success,
  /// It has not been seen for a while; looking goes on.
  timeout,
};

}  // namespace orvane
