// What decides how a semantic colour looks at the moment of drawing, and the resolved colour.
#pragma once

#include <optional>

namespace orvane::ui {

// Components from 0 to 1 in sRGB, not premultiplied.
struct Rgba {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;

  friend bool operator==(const Rgba&, const Rgba&) = default;
};

struct Appearance {
  bool dark = false;
  // The user's accent colour; empty means the platform's own (blue).
  std::optional<Rgba> accent;
  bool increaseContrast = false;
  bool reduceTransparency = false;
  bool reduceMotion = false;

  friend bool operator==(const Appearance&, const Appearance&) = default;
};

}  // namespace orvane::ui
