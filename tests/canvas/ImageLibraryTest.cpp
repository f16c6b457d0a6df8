// Images by name: painting at any size.
#include <string>

#include <gtest/gtest.h>

#include "desk/canvas/Artwork.hpp"
#include "desk/canvas/PngFile.hpp"
#include "tests/canvas/PixelFixture.hpp"

namespace orvane::desk {
namespace {

class ImageLibraryTest : public PixelFixture {
 protected:
  static SurfacePointer icon() {
    for (const Artwork& artwork : imageArtworks()) {
      if (artwork.name == "AppIcon") {
        return decodePng(artwork.bytes);
      }
    }
    return nullptr;
  }
};

TEST_F(ImageLibraryTest, AtTwoPixelsToThePointAnImageIsShownPixelByPixel) {
  begin(128, 128, 2).image("AppIcon", {0, 0, 128, 128});
  EXPECT_EQ(contentOf(surface.get()), contentOf(icon().get()));
}

TEST_F(ImageLibraryTest, AnImageIsStretchedToItsRectangle) {
  begin(60, 60).image("AppIcon", {10, 20, 40, 20});
  EXPECT_EQ(at(9, 30), nothing);
  EXPECT_EQ(at(30, 19), nothing);
  EXPECT_EQ(at(30, 41), nothing);
  EXPECT_GT(at(30, 30).alpha, 250);
  EXPECT_GT(at(16, 30).alpha, 250);
  begin(60, 60).image("AppIcon", {10, 20, 40, 0});
  EXPECT_EQ(ink(), 0);
}

TEST_F(ImageLibraryTest, AStrongReductionKeepsTheMeanOfThePixels) {
  const SurfacePointer whole = icon();
  constexpr int side = 256;
  constexpr double count = side * side;
  Pixel sum;
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      const Pixel pixel = pixelAt(whole.get(), x, y);
      sum.red += pixel.red;
      sum.alpha += pixel.alpha;
    }
  }
  begin(1, 1).image("AppIcon", {0, 0, 1, 1});
  EXPECT_NEAR(at(0, 0).red, sum.red / count, 4);
  EXPECT_NEAR(at(0, 0).alpha, sum.alpha / count, 4);
}

TEST_F(ImageLibraryTest, ARemovedImageIsNotShown) {
  resources.images.remove("AppIcon");
  EXPECT_FALSE(resources.images.size("AppIcon"));
  begin(4, 4).image("AppIcon", {0, 0, 4, 4});
  EXPECT_EQ(ink(), 0);
}

}  // namespace
}  // namespace orvane::desk
