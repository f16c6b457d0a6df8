// PNG files, written and read back.
#include <filesystem>

#include <gtest/gtest.h>

#include "desk/canvas/PngFile.hpp"
#include "tests/canvas/PixelFixture.hpp"

namespace orvane::desk {
namespace {

class PngFileTest : public PixelFixture {};

TEST_F(PngFileTest, APictureSurvivesAFile) {
  begin(3, 2).fill(ui::Shape::rectangle({1, 0, 1, 2}), ui::Paint::solid(red));
  const std::filesystem::path file =
      std::filesystem::path(testing::TempDir()) / "orvane-png-file-test.png";
  ASSERT_TRUE(writePng(surface.get(), file));
  const SurfacePointer back = readPng(file);
  ASSERT_TRUE(back);
  EXPECT_EQ(contentOf(back.get()), contentOf(surface.get()));
  std::filesystem::remove(file);
}

TEST_F(PngFileTest, FilesThatCannotBeWrittenOrReadAreReported) {
  begin(2, 2);
  const std::filesystem::path nowhere =
      std::filesystem::path(testing::TempDir()) / "no-such-folder" / "x.png";
  EXPECT_FALSE(writePng(surface.get(), nowhere));
  EXPECT_FALSE(readPng(nowhere));
}

}  // namespace
}  // namespace orvane::desk
