// The application's standard user defaults; NSUserDefaults on a Mac.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvane::appkit {

/// Reading is strict: a value of a different type reads as none, so that a malformed value is
/// treated as absent. Main thread only.
class UserDefaults {
 public:
  UserDefaults() = delete;

  static std::optional<std::string> string(std::string_view key);
  static std::optional<bool> boolean(std::string_view key);

  static void setString(std::string_view key, std::string_view value);
  static void setBoolean(std::string_view key, bool value);
  static void remove(std::string_view key);
};

}  // namespace orvane::appkit
