// Equal backgrounds are blurred once.
#include <gtest/gtest.h>

#include "desk/canvas/Blur.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/PngFile.hpp"
#include "showroom/desktop/GlassCache.hpp"

namespace orvane::showroom {
namespace {

/// A light square at `x` on black.
desk::SurfacePointer picture(int x, int side = 20) {
  desk::SurfacePointer surface = desk::imageSurface(side, 20, CAIRO_FORMAT_RGB24);
  const desk::ContextPointer context(cairo_create(surface.get()));
  cairo_set_source_rgb(context.get(), 1, 0.5, 0.25);
  cairo_rectangle(context.get(), x, 4, 6, 6);
  cairo_fill(context.get());
  return surface;
}

TEST(GlassCacheTest, ReturnsTheBlurredPicture) {
  GlassCache cache;
  const desk::SurfacePointer plain = picture(3);
  desk::blurSurface(plain.get(), 2, desk::BlurEdge::extended);
  const auto expected = desk::encodePng(plain.get());
  EXPECT_EQ(desk::encodePng(cache.blurred(picture(3), 2)), expected);
  EXPECT_EQ(desk::encodePng(cache.blurred(picture(3), 2)), expected);
  EXPECT_EQ(cache.blurCount(), 1);
}

TEST(GlassCacheTest, DistinguishesPicturesAndBlurs) {
  GlassCache cache;
  const auto first = desk::encodePng(cache.blurred(picture(3), 2));
  EXPECT_NE(desk::encodePng(cache.blurred(picture(4), 2)), first);
  EXPECT_NE(desk::encodePng(cache.blurred(picture(3), 3)), first);
  cache.blurred(picture(3, 21), 2);
  EXPECT_EQ(cache.blurCount(), 4);
  EXPECT_EQ(desk::encodePng(cache.blurred(picture(3), 2)), first);
  EXPECT_EQ(cache.blurCount(), 4);
}

TEST(GlassCacheTest, DropsTheLeastRecentlyUsed) {
  // Room for two pictures of 20 by 20 with their blurs.
  GlassCache cache(std::size_t{4} * 20 * 20 * 4);
  cache.blurred(picture(1), 2);
  cache.blurred(picture(2), 2);
  cache.blurred(picture(1), 2);
  cache.blurred(picture(3), 2);
  EXPECT_EQ(cache.count(), 2U);
  EXPECT_EQ(cache.blurCount(), 3);
  cache.blurred(picture(1), 2);
  EXPECT_EQ(cache.blurCount(), 3);
  cache.blurred(picture(2), 2);
  EXPECT_EQ(cache.blurCount(), 4);
}

}  // namespace
}  // namespace orvane::showroom
