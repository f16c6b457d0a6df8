// One attached display as the window system describes it; NSScreen on a Mac.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Orvane/platform/Quartz.hpp"

namespace orvane::appkit {

/// A snapshot: it describes the display as it was when the list was read. Frames are in
/// window-system coordinates: points, origin at the lower left of the first screen, y upwards.
class Screen {
 public:
  /// The screens in the system's order; the first one's lower-left corner is the origin.
  static std::vector<Screen> screens();
  /// The screen with the key window, or the one with the menu bar; none when there is no screen.
  static std::optional<Screen> mainScreen();

  [[nodiscard]] CGRect frame() const;
  /// The frame without the menu bar and the Dock.
  [[nodiscard]] CGRect visibleFrame() const;
  /// May be empty.
  [[nodiscard]] std::string localizedName() const;

  /// An entry of the device description, such as "NSScreenNumber"; none when it is missing or not
  /// a number.
  [[nodiscard]] std::optional<std::int64_t> deviceNumber(std::string_view key) const;
  /// None when the entry is missing or not a string.
  [[nodiscard]] std::optional<std::string> deviceString(std::string_view key) const;

  struct Implementation;
  explicit Screen(std::shared_ptr<const Implementation> implementation);

 private:
  std::shared_ptr<const Implementation> implementation_;
};

}  // namespace orvane::appkit
