// Display is one attached display.
#pragma once

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include "Orvane/platform/Quartz.hpp"

namespace orvane::desk {

struct Display {
  /// The CGDirectDisplayID. It may change while the display stays.
  std::uint32_t number = 0;
  /// The text of the display's UUID; none when the system knows none.
  std::optional<std::string> uuid;
  std::string name;
  /// In window-system coordinates: points, origin at the lower left of the first display, y
  /// upwards.
  CGRect frame{};
  /// None when the device description leaves it out.
  std::optional<int> bitsPerSample = 8;
  std::optional<std::string> colorSpace = "NSCalibratedRGBColorSpace";
  bool isBuiltIn = false;
  /// Whether "NSScreenNumber" is in the device description.
  bool hasNumberInDescription = true;
  /// Assigned by Displays on attachment and never reused: identifies the display even when its
  /// number changes.
  std::uint64_t identity = 0;

  /// In points, such as "1440 × 900".
  [[nodiscard]] std::string sizeText() const {
    return std::to_string(std::lround(frame.size.width)) + " × " +
           std::to_string(std::lround(frame.size.height));
  }
};

}  // namespace orvane::desk
