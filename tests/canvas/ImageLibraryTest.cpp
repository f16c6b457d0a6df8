// Pictures by name: reading and painting.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/canvas/ImageLibrary.hpp"
#include "desk/canvas/PngFile.hpp"
#include "tests/canvas/PixelFixture.hpp"

namespace orvane::desk {
namespace {

std::vector<std::uint8_t> bytesOf(const std::string& text) {
  return {text.begin(), text.end()};
}

class ImageLibraryTest : public PixelFixture {
 protected:
  /// A PNG that is red in its left half and black in its right half.
  std::vector<std::uint8_t> twoColors(int pictureWidth, int pictureHeight) {
    begin(pictureWidth, pictureHeight)
        .fill(ui::Shape::rectangle({0, 0, pictureWidth / 2.0, 1.0 * pictureHeight}),
              ui::Paint::solid(red));
    canvas->fill(
        ui::Shape::rectangle({pictureWidth / 2.0, 0, pictureWidth / 2.0, 1.0 * pictureHeight}),
        ui::Paint::solid(black));
    return encodePng(surface.get());
  }
};

TEST_F(ImageLibraryTest, APictureIsStretchedToItsRectangle) {
  ASSERT_TRUE(resources.images.add("two", twoColors(2, 2)));
  EXPECT_EQ(resources.images.size("two"), (ui::Size{2, 2}));
  begin(20, 10).image("two", {4, 2, 2, 2});
  EXPECT_EQ(at(4, 2), fullRed);
  EXPECT_EQ(at(5, 3), fullBlack);
  EXPECT_EQ(at(6, 3), nothing);
  EXPECT_EQ(ink(), 4);
  begin(20, 10).image("two", {0, 0, 20, 10});
  EXPECT_EQ(at(1, 5), fullRed);
  EXPECT_EQ(at(18, 5), fullBlack);
  EXPECT_EQ(ink(), 200);
}

TEST_F(ImageLibraryTest, AStrongReductionKeepsTheMeanOfThePixels) {
  begin(64, 64);
  for (int x = 0; x < 64; x += 2) {
    canvas->fill(ui::Shape::rectangle({1.0 * x, 0, 1, 64}), ui::Paint::solid(red));
    canvas->fill(ui::Shape::rectangle({1.0 * x + 1, 0, 1, 64}), ui::Paint::solid(black));
  }
  ASSERT_TRUE(resources.images.add("stripes", encodePng(surface.get())));
  begin(8, 8).image("stripes", {0, 0, 8, 8});
  for (int x = 0; x < 8; ++x) {
    EXPECT_NEAR(at(x, 4).red, 128, 3);
    EXPECT_EQ(at(x, 4).alpha, 255);
  }
}

TEST_F(ImageLibraryTest, ADrawingIsSharpAtEveryScale) {
  const std::string svg =
      "<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10'>"
      "<rect width='5' height='10' fill='#f00'/></svg>";
  ASSERT_TRUE(resources.images.add("half", bytesOf(svg)));
  EXPECT_EQ(resources.images.size("half"), (ui::Size{10, 10}));
  begin(40, 40, 3).image("half", {2, 2, 30, 20});
  EXPECT_EQ(at(6, 6), fullRed);
  EXPECT_EQ(at(50, 65), fullRed);
  EXPECT_EQ(at(51, 65), nothing);
  EXPECT_EQ(at(5, 6), nothing);
  EXPECT_EQ(at(50, 66), nothing);
}

TEST_F(ImageLibraryTest, UnreadablePicturesAreRefused) {
  EXPECT_FALSE(resources.images.add("broken", bytesOf("no picture")));
  EXPECT_FALSE(resources.images.add("broken", {}));
  std::vector<std::uint8_t> png = twoColors(8, 8);
  png.resize(png.size() / 2);
  EXPECT_FALSE(resources.images.add("broken", png));
  EXPECT_FALSE(resources.images.size("broken"));
}

TEST_F(ImageLibraryTest, AReplacedPictureIsShownAtOnceAndARemovedOneIsNot) {
  ASSERT_TRUE(resources.images.add("two", twoColors(2, 2)));
  begin(4, 4).image("two", {0, 0, 4, 4});
  begin(2, 2).fill(ui::Shape::rectangle({0, 0, 2, 2}), ui::Paint::solid({0, 0, 1, 1}));
  ASSERT_TRUE(resources.images.add("two", encodePng(surface.get())));
  begin(4, 4).image("two", {0, 0, 4, 4});
  EXPECT_EQ(at(1, 1), (Pixel{0, 0, 255, 255}));
  resources.images.remove("two");
  begin(4, 4).image("two", {0, 0, 4, 4});
  EXPECT_EQ(ink(), 0);
}

}  // namespace
}  // namespace orvane::desk
