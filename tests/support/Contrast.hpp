// Contrast as defined by WCAG 2.1.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include <cairo.h>

#include "Orvane/ui/draw/Appearance.hpp"

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

/// The stored pixel of an ARGB32 surface (premultiplied) or RGB24 surface (alpha is undefined). The
/// surface must be flushed.
inline ui::Rgba pixelAt(cairo_surface_t* surface, int x, int y) {
  const unsigned char* const row =
      cairo_image_surface_get_data(surface) + y * cairo_image_surface_get_stride(surface);
  const std::uint32_t value = reinterpret_cast<const std::uint32_t*>(row)[x];
  const auto component = [value](unsigned shift) {
    return static_cast<double>(value >> shift & 0xFFU) / 255;
  };
  return {component(16), component(8), component(0), component(24)};
}

}  // namespace orvane
