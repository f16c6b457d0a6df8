// The application's own bundle; NSBundle.mainBundle on a Mac.
#pragma once

#include <optional>
#include <string>

namespace orvane::appkit {

class Bundle {
 public:
  Bundle() = delete;

  /// The file URL of the application bundle; none when there is none.
  static std::optional<std::string> url();
  /// Whether the bundle is on a read-only volume, such as a disk image; false when that is unknown.
  static bool isOnReadOnlyVolume();
};

}  // namespace orvane::appkit
