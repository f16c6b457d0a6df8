// Opening links and files with the programs that the user has for them; NSWorkspace on a Mac.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvane::appkit {

class Workspace {
 public:
  Workspace() = delete;

  /// False when `url` does not form a URL or no program took it.
  static bool openURL(std::string_view url);
  /// Opens the file or application at an absolute path; false when that fails.
  static bool openFile(std::string_view path);
  /// `text` percent-encoded with the characters that a URL query allows; none when `text` is not
  /// valid UTF-8.
  static std::optional<std::string> percentEncodedForQuery(std::string_view text);
};

}  // namespace orvane::appkit
