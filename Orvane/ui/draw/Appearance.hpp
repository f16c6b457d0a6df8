// The settings of the user that colours and motions depend on, and a resolved colour.
#pragma once

#include <optional>

namespace orvane::ui {

/// A colour in sRGB, not premultiplied; components from 0 to 1.
struct Rgba {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;

  friend bool operator==(const Rgba&, const Rgba&) = default;
};

struct Appearance {
  bool dark = false;
  /// The user's accent colour; none for the platform's default, blue.
  std::optional<Rgba> accent = std::nullopt;
  bool increaseContrast = false;
  bool reduceMotion = false;

  friend bool operator==(const Appearance&, const Appearance&) = default;
};

}  // namespace orvane::ui
