// PixelFixture gives each test a canvas on a small surface, and reads its pixels.
#pragma once

#include <memory>

#include <gtest/gtest.h>

#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "tests/support/Pixels.hpp"

namespace orvane::desk {

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
    surface = imageSurface(width * scale, height * scale);
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

  /// The bounds of the pixels that are more than half covered.
  ui::Rect inkBounds() {
    ui::Rect bounds;
    for (int y = 0; y < height(); ++y) {
      for (int x = 0; x < width(); ++x) {
        if (at(x, y).alpha > 127) {
          bounds = bounds.united({1.0 * x, 1.0 * y, 1, 1});
        }
      }
    }
    return bounds;
  }

  DrawingResources resources;
  SurfacePointer surface;
  std::unique_ptr<CairoCanvas> canvas;
};

}  // namespace orvane::desk
