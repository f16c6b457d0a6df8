// PNG files, written and read back, and reference pictures. After an intended change, renew them
// with ORVANE_RENEW_PICTURES=1 and look at the changes.
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "desk/canvas/Artwork.hpp"
#include "desk/canvas/PngFile.hpp"
#include "tests/canvas/PixelFixture.hpp"
#include "tests/support/KeptPicture.hpp"

namespace orvane::desk {
namespace {

using ui::Paint;
using ui::Shape;

class PictureTest : public PixelFixture {
 protected:
  void expectPicture(const std::string& name) {
    EXPECT_EQ(differenceFromKept(surface.get(), "tests/canvas/pictures/" + name + ".png"),
              std::nullopt);
  }
};

TEST_F(PictureTest, ACardWithShadowGradientSymbolAndBothScripts) {
  begin(240, 90, 2).fill(Shape::rectangle({0, 0, 240, 90}), Paint::solid({0.92, 0.92, 0.92, 1}));
  const Shape card = Shape::roundedRectangle({20, 15, 200, 60}, 12);
  canvas->shadow(card, {{0, 0, 0, 0.3}, 10, {0, 4}});
  Paint veil;
  veil.stops = {{{1, 1, 1, 0.9}, 0}, {{0.9, 0.95, 1, 0.8}, 1}};
  veil.start = {0, 15};
  veil.end = {0, 75};
  canvas->fill(card, veil);
  canvas->stroke(card.inset(0.4), Paint::solid({1, 1, 1, 0.7}), 0.8);
  canvas->beginLayer({32, 27, 36, 36}, 0.9, ui::PaintShadow{{0, 0.4, 1, 0.4}, 6, {0, 2}});
  canvas->fill(Shape::roundedRectangle({32, 27, 36, 36}, 9), Paint::solid({0, 0.48, 1, 1}));
  canvas->symbol("lock", {18, ui::Weight::bold}, white, {32, 27, 36, 36});
  canvas->endLayer();
  canvas->text("Pin Dock", ui::Font::headline(), {0, 0, 0, 0.85}, {80, 42});
  canvas->text("固定 Dock 到指定显示器", ui::Font::subheadline(), {0, 0, 0, 0.5}, {80, 59});
  expectPicture("card");
}

TEST_F(PictureTest, AllSymbols) {
  begin(320, 200, 2).fill(Shape::rectangle({0, 0, 320, 200}), Paint::solid({0.2, 0.2, 0.2, 1}));
  int index = 0;
  for (const Artwork& artwork : symbolArtworks()) {
    const int row = index / 8;
    const int column = index % 8;
    canvas->symbol(std::string(artwork.name), {20, ui::Weight::medium}, white,
                   {8.0 + 38 * column, 4.0 + 38 * row, 38, 38});
    ++index;
  }
  expectPicture("symbols");
}

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
