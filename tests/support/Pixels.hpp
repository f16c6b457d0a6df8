// The pixels of cairo's image surfaces.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <ostream>

#include "Orvane/ui/draw/Appearance.hpp"
#include "desk/canvas/ImageSurface.hpp"

namespace orvane::desk {

/// Premultiplied components from 0 to 255.
struct Pixel {
  int red = 0;
  int green = 0;
  int blue = 0;
  int alpha = 0;

  friend bool operator==(const Pixel&, const Pixel&) = default;
};

/// Of a component.
inline int greatestDifference(const Pixel& first, const Pixel& second) {
  return std::max({std::abs(first.red - second.red), std::abs(first.green - second.green),
                   std::abs(first.blue - second.blue), std::abs(first.alpha - second.alpha)});
}

inline void PrintTo(const Pixel& pixel, std::ostream* stream) {
  *stream << "(" << pixel.red << " " << pixel.green << " " << pixel.blue << " / " << pixel.alpha
          << ")";
}

inline Pixel pixelAt(cairo_surface_t* surface, int x, int y) {
  cairo_surface_flush(surface);
  const unsigned char* row =
      cairo_image_surface_get_data(surface) + y * cairo_image_surface_get_stride(surface);
  const std::uint32_t value = reinterpret_cast<const std::uint32_t*>(row)[x];
  return {static_cast<int>(value >> 16U & 0xFFU), static_cast<int>(value >> 8U & 0xFFU),
          static_cast<int>(value & 0xFFU), static_cast<int>(value >> 24U & 0xFFU)};
}

inline int coverageAt(cairo_surface_t* surface, int x, int y) {
  cairo_surface_flush(surface);
  return cairo_image_surface_get_data(surface)[y * cairo_image_surface_get_stride(surface) + x];
}

/// A surface of one colour.
inline SurfacePointer filledSurface(int width, int height, const ui::Rgba& color) {
  SurfacePointer surface = imageSurface(width, height);
  const ContextPointer context(cairo_create(surface.get()));
  cairo_set_source_rgba(context.get(), color.red, color.green, color.blue, color.alpha);
  cairo_paint(context.get());
  return surface;
}

}  // namespace orvane::desk
