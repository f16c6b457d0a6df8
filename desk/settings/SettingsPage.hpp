// The pages of the simulated System Settings.
#pragma once

#include <cstdint>

namespace orvane::desk {

enum class SettingsPage : std::uint8_t {
  general,
  displays,
  desktopAndDock,
  privacy,
  /// Below privacy.
  accessibility,
};

}  // namespace orvane::desk
