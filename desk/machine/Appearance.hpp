// How the user likes the system to look.
#pragma once

#include <cstdint>

namespace orvane::desk {

struct Appearance {
  enum class Wallpaper : std::uint8_t { standard, white, black, busy };
  struct Accent {
    std::uint8_t red = 0;
    std::uint8_t green = 122;
    std::uint8_t blue = 255;
    bool operator==(const Accent&) const = default;
  };

  bool isDark = false;
  /// None of the user's own until set: the system's blue.
  Accent accent;
  Wallpaper wallpaper = Wallpaper::standard;
  bool reducesMotion = false;
  bool reducesTransparency = false;
  bool increasesContrast = false;
};

}  // namespace orvane::desk
