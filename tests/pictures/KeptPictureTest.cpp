// The comparison of pictures.
#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>

#include "desk/canvas/PngFile.hpp"
#include "tests/support/KeptPicture.hpp"
#include "tests/support/Pixels.hpp"

namespace orvane::desk {
namespace {

SurfacePointer grey(int width, int height, double level, int x = -1, double pixelLevel = 0) {
  SurfacePointer surface = filledSurface(width, height, {level, level, level, 1});
  if (x >= 0) {
    const ContextPointer context(cairo_create(surface.get()));
    cairo_set_source_rgb(context.get(), level, level, pixelLevel);
    cairo_rectangle(context.get(), x, 1, 1, 1);
    cairo_fill(context.get());
  }
  return surface;
}

constexpr double step = 1.0 / 255;

/// Disables the renewal of kept pictures during its lifetime.
class NoRenewing {
 public:
  NoRenewing() { unsetenv(variable); }
  NoRenewing(const NoRenewing&) = delete;
  NoRenewing& operator=(const NoRenewing&) = delete;
  ~NoRenewing() {
    if (isRenewing_) {
      setenv(variable, "1", 1);
    }
  }

 private:
  static constexpr const char* variable = "ORVANE_RENEW_PICTURES";
  const bool isRenewing_ = std::getenv(variable) != nullptr;
};

TEST(KeptPictureTest, EqualPicturesDoNotDiffer) {
  EXPECT_EQ(pictureDifference(grey(4, 3, 0.5).get(), grey(4, 3, 0.5).get()), std::nullopt);
}

TEST(KeptPictureTest, OnePixelInOneComponentIsADifference) {
  const double level = 100 * step;
  const auto pixel = grey(4, 3, level, 2, 103 * step);
  EXPECT_EQ(pictureDifference(pixel.get(), grey(4, 3, level).get()),
            "1 pixels differ, by up to 3 of 255, the first one at 2, 1");
  const auto within = grey(4, 3, level, 2, 102 * step);
  EXPECT_EQ(pictureDifference(within.get(), grey(4, 3, level).get()), std::nullopt);
}

TEST(KeptPictureTest, AnotherSizeIsADifference) {
  EXPECT_EQ(pictureDifference(grey(4, 3, 0.5).get(), grey(4, 4, 0.5).get()),
            "it has 4 by 3 pixels instead of 4 by 4");
}

TEST(KeptPictureTest, AFileIsComparedPixelByPixelAndMustBeThere) {
  const NoRenewing noRenewing;
  const auto file = std::filesystem::path(testing::TempDir()) / "orvane-kept-picture.png";
  std::filesystem::remove(file);
  const auto picture = grey(4, 3, 0.5);
  EXPECT_NE(differenceFromKept(picture.get(), file), std::nullopt);
  ASSERT_TRUE(writePng(picture.get(), file));
  EXPECT_EQ(differenceFromKept(picture.get(), file), std::nullopt);
  EXPECT_NE(differenceFromKept(grey(4, 3, 0.5, 0, 0.6).get(), file), std::nullopt);
}

}  // namespace
}  // namespace orvane::desk
