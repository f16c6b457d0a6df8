// Opening links and files with the user's default programs; NSWorkspace on a Mac.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace orvane::appkit {

/// Opening may take a while, so it is asynchronous: `completed`, which may be null, is called from
/// a task on the main queue.
class Workspace {
 public:
  Workspace() = delete;

  /// `isOpened` is false when `url` is not a valid URL or no program accepts it.
  static void openURL(std::string_view url, std::function<void(bool isOpened)> completed = nullptr);
  /// Opens the file or application at an absolute path.
  static void openFile(std::string_view path,
                       std::function<void(bool isOpened)> completed = nullptr);
  /// `text` percent-encoded with the characters that a URL query allows; none when `text` is not
  /// valid UTF-8.
  static std::optional<std::string> percentEncodedForQuery(std::string_view text);
};

}  // namespace orvane::appkit
