// The user's appearance settings.
#pragma once

#include <cstdint>
#include <optional>

namespace orvane::desk {

struct Appearance {
  enum class Wallpaper : std::uint8_t { standard, white, black, busy };
  struct Accent {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Accent&) const = default;
  };

  bool isDark = false;
  /// None until the user chooses one: the system's blue, which differs between light and dark.
  std::optional<Accent> accent;
  Wallpaper wallpaper = Wallpaper::standard;
  bool reducesMotion = false;
  bool reducesTransparency = false;
  bool increasesContrast = false;
};

}  // namespace orvane::desk
