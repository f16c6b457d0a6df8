// What the hardware panel says, as plain values: equal contents look alike.
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

struct HardwareFigure {
  std::string label;
  std::string value;
  bool operator==(const HardwareFigure&) const = default;
};

struct HardwareContent {
  std::vector<HardwareDisplay> displays;
  bool canAttachDisplay = false;
  desk::DockEdge edge = desk::DockEdge::bottom;
  bool autoHides = false;
  bool isTrusted = false;
  bool isDark = false;
  desk::Appearance::Wallpaper wallpaper = desk::Appearance::Wallpaper::standard;
  std::optional<std::size_t> languageList;
  bool isRunning = false;
  bool showsZones = false;
  std::vector<HardwareFigure> figures;
  /// The guard's last word; empty before its first.
  std::string message;
  /// What to do with mouse and keys.
  std::string hint;
  bool operator==(const HardwareContent&) const = default;

  /// All but the hint.
  [[nodiscard]] static HardwareContent of(const Hardware& hardware, std::int64_t eventsPerSecond);
};

}  // namespace orvane::showroom
