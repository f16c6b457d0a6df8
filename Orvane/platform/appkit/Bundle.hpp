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
  /// Whether nothing can be written where it lies, as on a disk image; false where nobody can tell.
  static bool isOnReadOnlyVolume();
};

}  // namespace orvane::appkit
