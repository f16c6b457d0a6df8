// Drawn text: position, width and colour.
#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/canvas/PngFile.hpp"
#include "desk/canvas/TextShaper.hpp"
#include "tests/canvas/PixelFixture.hpp"

namespace orvane::desk {
namespace {

using TextShaperTest = PixelFixture;

TEST_F(TextShaperTest, TheDrawnLineHasItsMeasuredWidth) {
  for (const int scale : {1, 2, 4}) {
    const ui::Font font = ui::Font::system(26);
    begin(200, 40, scale).text("H", font, black, {10, 30});
    const ui::Rect inkOfLetter = inkBounds();
    begin(200, 40, scale).text("HamburgH", font, black, {10, 30});
    const ui::Rect inkOfLine = inkBounds();
    EXPECT_EQ(inkOfLetter.x, inkOfLine.x);
    const double letter = resources.shaper.measure("H", font).width;
    const double line = resources.shaper.measure("HamburgH", font).width;
    EXPECT_NEAR(inkOfLine.right() - inkOfLetter.right(), (line - letter) * scale, 1.01) << scale;
  }
}

TEST_F(TextShaperTest, TrackingIsMeasuredAndDrawnBetweenTheCharacters) {
  ui::Font font = ui::Font::system(26);
  const double natural = resources.shaper.measure("HamburgH", font).width;
  begin(200, 40, 4).text("HamburgH", font, black, {10, 30});
  const ui::Rect inkOfNatural = inkBounds();
  font.tracking = -0.5;
  // Eight characters have seven gaps.
  EXPECT_NEAR(resources.shaper.measure("HamburgH", font).width, natural - 3.5, 0.01);
  begin(200, 40, 4).text("HamburgH", font, black, {10, 30});
  EXPECT_EQ(inkBounds().x, inkOfNatural.x);
  EXPECT_NEAR(inkBounds().right(), inkOfNatural.right() - 3.5 * 4, 1.01);
}

TEST_F(TextShaperTest, TheBaselineIsTheLowerEdgeOfAnH) {
  begin(40, 40).text("H", ui::Font::system(20, ui::Weight::bold), black, {10, 30});
  EXPECT_EQ(inkBounds().bottom(), 30);
}

TEST_F(TextShaperTest, ABaselineIsRoundedToWholePixels) {
  begin(60, 40).text("HE", ui::Font::system(20), black, {10, 30});
  const std::string onPixel = contentOf(surface.get());
  for (const double baseline : {29.6, 30.3}) {
    begin(60, 40).text("HE", ui::Font::system(20), black, {10, baseline});
    EXPECT_EQ(contentOf(surface.get()), onPixel) << baseline;
  }
  begin(60, 40).text("HE", ui::Font::system(20), black, {10, 30.7});
  EXPECT_NE(contentOf(surface.get()), onPixel);
}

TEST_F(TextShaperTest, TextIsGrayNeverColored) {
  begin(80, 20).fill(ui::Shape::rectangle({0, 0, 80, 20}), ui::Paint::solid(white));
  canvas->text("Hamburg", ui::Font::body(), black, {2.25, 15});
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 80; ++x) {
      ASSERT_EQ(at(x, y).red, at(x, y).green);
      ASSERT_EQ(at(x, y).red, at(x, y).blue);
    }
  }
}

TEST_F(TextShaperTest, TranslucentTextHasItsOwnAlpha) {
  begin(40, 30).text("H", ui::Font::system(28, ui::Weight::black), {1, 0, 0, 0.5}, {5, 27});
  int strongest = 0;
  for (int y = 0; y < 30; ++y) {
    for (int x = 0; x < 40; ++x) {
      strongest = std::max(strongest, at(x, y).alpha);
    }
  }
  EXPECT_NEAR(strongest, 128, 1);
}

TEST_F(TextShaperTest, ScaledTextIsDrawnAtItsSize) {
  const ui::Font font = ui::Font::system(20);
  begin(200, 60).text("Ham", font, black, {0, 40});
  const ui::Rect natural = inkBounds();
  begin(200, 60).save();
  canvas->transform(ui::Transform::scaling(2, {0, 40}));
  canvas->text("Ham", font, black, {0, 40});
  canvas->restore();
  EXPECT_NEAR(inkBounds().width, 2 * natural.width, 3);
}

TEST_F(TextShaperTest, ChineseCharactersAreCenteredInTheirLine) {
  const double size = 50;
  const ui::Font font = ui::Font::system(size);
  // A character with a square outline.
  const std::string character = "\u56fd";
  const LineMetrics line = resources.shaper.measure(character, font);
  begin(60, 80).text(character, font, black, {5, line.ascent});
  EXPECT_NEAR(inkBounds().center().y, line.height / 2, 0.03 * size);
}

TEST_F(TextShaperTest, AMixedLineHasTheGreaterAscentAndDescent) {
  const ui::Font font = ui::Font::system(20);
  const LineMetrics latin = resources.shaper.measure("Dock", font);
  const LineMetrics chinese = resources.shaper.measure("\u7a0b\u5e8f\u575e", font);
  const LineMetrics mixed = resources.shaper.measure("Dock \u7a0b\u5e8f\u575e", font);
  EXPECT_NEAR(chinese.height, 1.4 * 20, 0.01);
  EXPECT_LT(latin.height, chinese.height);
  EXPECT_DOUBLE_EQ(mixed.ascent, std::max(latin.ascent, chinese.ascent));
  EXPECT_DOUBLE_EQ(mixed.height - mixed.ascent,
                   std::max(latin.height - latin.ascent, chinese.height - chinese.ascent));
}

TEST_F(TextShaperTest, AnEmptyLineAndBrokenBytesDoNoHarm) {
  begin(40, 20).text("", ui::Font::body(), black, {0, 15});
  canvas->text("   ", ui::Font::body(), black, {0, 15});
  canvas->text("x", ui::Font::system(0), black, {0, 15});
  EXPECT_EQ(ink(), 0);
  canvas->text("a\xFF\xC3", ui::Font::body(), black, {0, 15});
  EXPECT_GT(ink(), 0);
}

}  // namespace
}  // namespace orvane::desk
