// Line breaking and measuring.
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "desk/canvas/TextShaper.hpp"

namespace orvane::desk {
namespace {

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
    return measurer.layout(line, font, unlimited, {}).lines[0].width;
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
  const ui::TextLayout latin = measurer.layout("Dock", font, unlimited, {});
  // Inter Display's own ascent and descent are 0.9639 and 0.2451 of the size.
  EXPECT_NEAR(latin.ascent, 13 * 0.9639, 0.01);
  // 13 times 1.21 is 15.73, rounded up to whole points.
  EXPECT_EQ(latin.lineHeight, 16);
  const ui::TextLayout mixed = measurer.layout("Dock\n固定", font, unlimited, {});
  EXPECT_GT(mixed.lineHeight, latin.lineHeight);
  EXPECT_DOUBLE_EQ(mixed.size().height, 2 * mixed.lineHeight);
  EXPECT_EQ(measurer.layout("", font, unlimited, {}).lineHeight, latin.lineHeight);
}

TEST_F(TextShaperLinesTest, WidthsAreProportionalToTheSize) {
  const double once =
      measurer.layout("Hamburg", ui::Font::system(10), unlimited, {}).lines[0].width;
  const double thrice =
      measurer.layout("Hamburg", ui::Font::system(30), unlimited, {}).lines[0].width;
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
  for (const ui::TextLine& line : measurer.layout(text, font, width, {}).lines) {
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
