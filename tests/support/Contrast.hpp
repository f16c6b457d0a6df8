// Contrast as defined by WCAG 2.1.
#pragma once

#include <algorithm>
#include <cmath>

#include "tests/support/Pixels.hpp"

namespace orvane {

/// The linear light of an sRGB component from 0 to 1.
inline double linear(double component) {
  return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

/// Relative luminance, from 0 to 1; the colour's alpha does not count.
inline double luminance(const ui::Rgba& color) {
  return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

/// Of two relative luminances, from 1 to 21.
inline double contrast(double first, double second) {
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

/// The stored pixel of an ARGB32 surface (premultiplied) or RGB24 surface (alpha is undefined).
inline ui::Rgba pixelAt(cairo_surface_t* surface, int x, int y) {
  const desk::Pixel pixel = desk::pixelAt(surface, x, y);
  return {pixel.red / 255.0, pixel.green / 255.0, pixel.blue / 255.0, pixel.alpha / 255.0};
}

}  // namespace orvane
