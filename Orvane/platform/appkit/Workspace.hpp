// Opening links and files with the programs that the user has for them; NSWorkspace on a Mac.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace orvane::appkit {

/// Opening takes a program of the user's its time, so nobody waits for it: `completed`, which may
/// be null, comes in a task of the main queue.
class Workspace {
 public:
  Workspace() = delete;

  /// Not opened when `url` does not form a URL or no program took it.
  static void openURL(std::string_view url, std::function<void(bool isOpened)> completed = nullptr);
  /// Opens the file or application at an absolute path.
  static void openFile(std::string_view path,
                       std::function<void(bool isOpened)> completed = nullptr);
  /// `text` percent-encoded with the characters that a URL query allows; none when `text` is not
  /// valid UTF-8.
  static std::optional<std::string> percentEncodedForQuery(std::string_view text);
};

}  // namespace orvane::appkit
