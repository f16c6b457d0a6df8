// HardwareContent is the content of the hardware panel as plain values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "showroom/hardware/Hardware.hpp"

namespace orvane::showroom {

struct HardwareDisplay {
  std::uint32_t number = 0;
  std::string name;
  /// In points, such as "1440 × 900".
  std::string size;
  bool isMain = false;
  bool operator==(const HardwareDisplay&) const = default;
};

struct HardwareCounter {
  std::string label;
  std::string value;
  bool operator==(const HardwareCounter&) const = default;
};

/// A choice of preferred languages and locale.
struct HardwareLanguages {
  const char* title;
  desk::LocaleSettings locale;
};
[[nodiscard]] const std::vector<HardwareLanguages>& hardwareLanguages();

struct HardwareContent {
  std::vector<HardwareDisplay> displays;
  bool canAttachDisplay = false;
  desk::DockEdge edge = desk::DockEdge::bottom;
  bool autoHides = false;
  bool isTrusted = false;
  bool isDark = false;
  desk::Appearance::Wallpaper wallpaper = desk::Appearance::Wallpaper::standard;
  /// The index in hardwareLanguages(); none if the present setting is not among them.
  std::optional<std::size_t> languages;
  bool isRunning = false;
  bool showsZones = false;
  std::vector<HardwareCounter> counters;
  /// The guard's last message; empty before the first.
  std::string message;
  /// How to capture or release the mouse.
  std::string hint;
  bool operator==(const HardwareContent&) const = default;

  /// Everything except the hint.
  [[nodiscard]] static HardwareContent of(const Hardware& hardware, std::int64_t eventsPerSecond);
};

}  // namespace orvane::showroom
