// PixelFixture gives each test a canvas on a small surface, and reads its pixels.
#pragma once

#include <cstdint>
#include <memory>

#include <cairo.h>
#include <gtest/gtest.h>

#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {

/// Premultiplied components from 0 to 255.
struct Pixel {
  int red = 0;
  int green = 0;
  int blue = 0;
  int alpha = 0;

  friend bool operator==(const Pixel&, const Pixel&) = default;
};

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

class PixelFixture : public testing::Test {
 protected:
  static constexpr ui::Rgba black{0, 0, 0, 1};
  static constexpr ui::Rgba red{1, 0, 0, 1};
  static constexpr ui::Rgba white{1, 1, 1, 1};
  static constexpr Pixel nothing{0, 0, 0, 0};
  static constexpr Pixel fullRed{255, 0, 0, 255};
  static constexpr Pixel fullBlack{0, 0, 0, 255};

  /// Replaces the surface by a clear one of this size in points.
  CairoCanvas& begin(int width, int height, int scale = 1) {
    surface.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width * scale, height * scale));
    canvas = std::make_unique<CairoCanvas>(surface.get(), scale, resources);
    return *canvas;
  }

  Pixel at(int x, int y) { return pixelAt(surface.get(), x, y); }

  int width() { return cairo_image_surface_get_width(surface.get()); }
  int height() { return cairo_image_surface_get_height(surface.get()); }

  /// The sum of alpha over the whole surface, in pixels.
  double ink() {
    double sum = 0;
    for (int y = 0; y < height(); ++y) {
      for (int x = 0; x < width(); ++x) {
        sum += at(x, y).alpha / 255.0;
      }
    }
    return sum;
  }

  DrawingResources resources;
  SurfacePointer surface;
  std::unique_ptr<CairoCanvas> canvas;
};

}  // namespace orvane::desk
