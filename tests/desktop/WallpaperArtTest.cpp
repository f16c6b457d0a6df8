// Properties of the wallpapers' pixels.
#include <utility>

#include <gtest/gtest.h>

#include "desk/canvas/ImageSurface.hpp"
#include "showroom/desktop/WallpaperArt.hpp"
#include "tests/canvas/PixelFixture.hpp"

namespace orvane::showroom {
namespace {

desk::SurfacePointer drawn(desk::Appearance::Wallpaper wallpaper, bool isDark, int width,
                           int height) {
  desk::SurfacePointer surface = desk::imageSurface(width, height);
  const desk::ContextPointer context(cairo_create(surface.get()));
  paintWallpaper(context.get(), wallpaper, isDark, width, height);
  return surface;
}

double brightness(cairo_surface_t* surface) {
  double sum = 0;
  const int width = cairo_image_surface_get_width(surface);
  const int height = cairo_image_surface_get_height(surface);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const desk::Pixel pixel = desk::pixelAt(surface, x, y);
      sum += (pixel.red + pixel.green + pixel.blue) / 765.0;
    }
  }
  return sum / width / height;
}

TEST(WallpaperArtTest, WhiteAndBlackAreUniform) {
  EXPECT_DOUBLE_EQ(brightness(drawn(desk::Appearance::Wallpaper::white, true, 60, 40).get()), 1);
  EXPECT_DOUBLE_EQ(brightness(drawn(desk::Appearance::Wallpaper::black, false, 60, 40).get()), 0);
}

TEST(WallpaperArtTest, CoversEveryAspectRatio) {
  for (const auto& [width, height] : {std::pair(300, 60), std::pair(60, 300), std::pair(97, 61)}) {
    for (const auto wallpaper :
         {desk::Appearance::Wallpaper::standard, desk::Appearance::Wallpaper::busy}) {
      const desk::SurfacePointer surface = drawn(wallpaper, false, width, height);
      for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
          ASSERT_EQ(desk::pixelAt(surface.get(), x, y).alpha, 255) << x << " " << y;
        }
      }
    }
  }
}

}  // namespace
}  // namespace orvane::showroom
