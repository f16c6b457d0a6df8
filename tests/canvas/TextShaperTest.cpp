// Drawn text: position, width, colour and line breaking.
#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

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

constexpr double unlimited = std::numeric_limits<double>::infinity();

class TextShaperLinesTest : public testing::Test {
 protected:
  std::vector<std::string> linesOf(const std::string& text, double width, int limit = 0) {
    std::vector<std::string> lines;
    for (const ui::TextLine& line : measurer.layout(text, font, width, {limit}).lines) {
      lines.push_back(line.text);
    }
    return lines;
  }
  double widthOf(const std::string& line) {
    return measurer.layout(line, font, unlimited, {0}).lines[0].width;
  }

  const ui::Font font = ui::Font::body();
  TextShaper measurer;
};

using Lines = std::vector<std::string>;

TEST_F(TextShaperLinesTest, UnlimitedTextBreaksOnlyAtLineFeeds) {
  EXPECT_EQ(linesOf("Pin Dock to a Display", unlimited), Lines{"Pin Dock to a Display"});
  EXPECT_EQ(linesOf("a\n\nb\n", unlimited), (Lines{"a", "", "b", ""}));
  EXPECT_EQ(linesOf("", unlimited), Lines{""});
}

TEST_F(TextShaperLinesTest, LinesBreakBetweenWordsWithoutTheBlank) {
  EXPECT_EQ(linesOf("Pin Dock", widthOf("Pin Dock")), Lines{"Pin Dock"});
  EXPECT_EQ(linesOf("Pin Dock", widthOf("Pin Dock") - 0.1), (Lines{"Pin", "Dock"}));
}

TEST_F(TextShaperLinesTest, AWordThatIsTooWideBreaksBetweenCharacters) {
  EXPECT_EQ(linesOf("mmmmm", widthOf("mm") + 0.1), (Lines{"mm", "mm", "m"}));
  for (const double width : {0.0, -5.0, std::nan("")}) {
    EXPECT_EQ(linesOf("abc", width), (Lines{"a", "b", "c"})) << width;
  }
}

TEST_F(TextShaperLinesTest, ChineseBreaksBetweenCharactersButNotBeforeAFullStop) {
  EXPECT_EQ(linesOf("固定到显示器", widthOf("固定到")), (Lines{"固定到", "显示器"}));
  EXPECT_EQ(linesOf("固定到。", widthOf("固定到")), (Lines{"固定", "到。"}));
}

TEST_F(TextShaperLinesTest, ALineLimitEndsInAnEllipsis) {
  const ui::TextLayout cut =
      measurer.layout("Pin Dock to a Display", font, widthOf("Pin Dock…"), {1});
  EXPECT_EQ(cut.lines.size(), 1U);
  EXPECT_EQ(cut.lines[0].text, "Pin Dock…");
  EXPECT_TRUE(cut.isTruncated);
  EXPECT_EQ(linesOf("固定到显示器", widthOf("固定…"), 1), Lines{"固定…"});
  EXPECT_EQ(linesOf("a\nb\nc", unlimited, 2), (Lines{"a", "b…"}));
  EXPECT_EQ(linesOf("a\nb", unlimited, 2), (Lines{"a", "b"}));
  EXPECT_FALSE(measurer.layout("Pin Dock", font, widthOf("Pin Dock"), {1}).isTruncated);
  EXPECT_EQ(linesOf("Pin", 0, 1), Lines{"…"});
}

TEST_F(TextShaperLinesTest, ALineCutInTheMiddleKeepsItsEnd) {
  const auto cut = [&](const std::string& text, double width) {
    return measurer.layout(text, font, width, {1, ui::TruncationMode::middle}).lines.at(0);
  };
  const std::string end = "(2) （主要）";
  for (const std::string name : {"Studio Display XDR of the Laboratory ", "超宽曲面专业显示器 "}) {
    const ui::TextLine line = cut(name + end, 154);
    EXPECT_LE(line.width, 154);
    EXPECT_TRUE(line.text.ends_with("…" + end)) << line.text;
    EXPECT_EQ(line.text.substr(0, 3), name.substr(0, 3));
  }
  EXPECT_EQ(cut("Pin Dock", widthOf("Pin Dock")).text, "Pin Dock");
  EXPECT_EQ(linesOf("Pin\nDock", unlimited, 1), Lines{"Pin…"});
}

TEST_F(TextShaperLinesTest, TheLinesOfATextShareOneHeight) {
  const ui::TextLayout latin = measurer.layout("Dock", font, unlimited, {0});
  // Inter Display's own ascent and descent are 0.9639 and 0.2451 of the size.
  EXPECT_NEAR(latin.ascent, 13 * 0.9639, 0.01);
  // 13 times 1.21 is 15.73, rounded up to whole points.
  EXPECT_EQ(latin.lineHeight, 16);
  const ui::TextLayout mixed = measurer.layout("Dock\n固定", font, unlimited, {0});
  EXPECT_GT(mixed.lineHeight, latin.lineHeight);
  EXPECT_DOUBLE_EQ(mixed.size().height, 2 * mixed.lineHeight);
  EXPECT_EQ(measurer.layout("", font, unlimited, {0}).lineHeight, latin.lineHeight);
}

TEST_F(TextShaperLinesTest, WidthsAreProportionalToTheSize) {
  const double once =
      measurer.layout("Hamburg", ui::Font::system(10), unlimited, {0}).lines[0].width;
  const double thrice =
      measurer.layout("Hamburg", ui::Font::system(30), unlimited, {0}).lines[0].width;
  EXPECT_NEAR(thrice, 3 * once, 0.05);
}

RC_GTEST_FIXTURE_PROP(TextShaperLinesTest, NoLineIsWiderThanAllowedAndNoWordIsLost, ()) {
  const auto words = *rc::gen::nonEmpty(rc::gen::container<std::vector<std::string>>(
      rc::gen::element<std::string>("Pin", "Dock", "to", "a", "Display", "固定", "显示器", "，")));
  const double width = *rc::gen::inRange(60, 400);
  std::string text;
  for (const std::string& word : words) {
    text += (text.empty() ? "" : " ") + word;
  }
  std::string joined;
  for (const ui::TextLine& line : measurer.layout(text, font, width, {0}).lines) {
    RC_ASSERT(line.width <= width + 0.01);
    joined += line.text;
  }
  const auto withoutBlanks = [](std::string all) {
    std::erase(all, ' ');
    return all;
  };
  RC_ASSERT(withoutBlanks(joined) == withoutBlanks(text));
}

}  // namespace
}  // namespace orvane::desk
