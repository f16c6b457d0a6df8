// The application's own bundle; NSBundle.mainBundle on a Mac.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvane::appkit {

class Bundle {
 public:
  Bundle() = delete;

  /// The file URL of the application bundle; none when there is none.
  static std::optional<std::string> url();
  /// Whether the bundle's resources hold an image of that name.
  static bool hasImage(std::string_view name);
};

}  // namespace orvane::appkit
