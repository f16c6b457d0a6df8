// A line of text in too little room: it is tightened or truncated.
#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/ui/draw/Truncation.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

class TextTest : public testing::Test {
 protected:
  double widthOfLine() { return test.element("abcdefghij")->frame.width; }
  double heightOfLine() { return test.element("abcdefghij")->frame.height; }

  TestHost test;
};

TEST_F(TextTest, IsTightenedAsFarAsNecessaryAndAllowed) {
  test.show(lineOfTenCharacters(50).allowsTightening());
  EXPECT_TRUE(test.draws("text \"abcdefghij\" 10/400 ")) << test.drawing();
  // A fifth of a point for each character, in steps of a 64th of a point.
  test.show(lineOfTenCharacters(48).allowsTightening());
  EXPECT_TRUE(test.draws("text \"abcdefghij\" 10/400/-0.203 ")) << test.drawing();
  EXPECT_LE(widthOfLine(), 48);
  test.show(lineOfTenCharacters(47).allowsTightening());
  EXPECT_TRUE(test.draws("text \"abcdefgh…\" 10/400 ")) << test.drawing();
  test.show(lineOfTenCharacters(47).allowsTightening(0.06));
  EXPECT_TRUE(test.draws("text \"abcdefghij\" 10/400/-0.313 ")) << test.drawing();
  test.show(lineOfTenCharacters(48));
  EXPECT_TRUE(test.draws("…")) << test.drawing();
}

TEST_F(TextTest, SeveralLinesAreNotTightened) {
  test.show(Text("aaaaaaaaaa bbbbbbbbbb")
                .font(Font::system(10))
                .lineLimit(2)
                .allowsTightening()
                .frame({.width = 48}));
  EXPECT_FALSE(test.draws("/-0")) << test.drawing();
}

TEST_F(TextTest, FollowsChangesOfItsEnvironment) {
  TruncationMode mode = TruncationMode::tail;
  double tightening = 0;
  double height = 0;
  test.show([&](const Environment&) {
    return lineOfTenCharacters(46)
        .truncationMode(mode)
        .allowsTightening(tightening)
        .lineHeight(height);
  });
  EXPECT_TRUE(test.draws("\"abcdefgh…\"")) << test.drawing();
  mode = TruncationMode::middle;
  test.update();
  EXPECT_TRUE(test.draws("\"abcd…ghij\"")) << test.drawing();
  tightening = 0.1;
  test.update();
  EXPECT_FALSE(test.draws("…")) << test.drawing();
  EXPECT_EQ(heightOfLine(), 10);
  height = 1;
  test.update();
  EXPECT_EQ(heightOfLine(), 1);
}

const std::string ellipsis = "…";

bool isStart(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

double widthOf(const std::string& text) {
  return static_cast<double>(std::ranges::count_if(text, isStart));
}

std::string cut(const std::string& line, TruncationMode mode, double width) {
  std::vector<std::size_t> places;
  for (std::size_t place = 0; place <= line.size(); ++place) {
    if (place == line.size() || isStart(line[place])) {
      places.push_back(place);
    }
  }
  return truncatedLine(line, places, mode, width, widthOf);
}

TEST(TruncationTest, AtTheTailAsMuchOfTheBeginningAsFitsIsKept) {
  EXPECT_EQ(cut("Studio Display", TruncationMode::tail, 10), "Studio Di…");
  // No blank before the ellipsis.
  EXPECT_EQ(cut("Studio Display", TruncationMode::tail, 8), "Studio…");
  EXPECT_EQ(cut("Studio Display", TruncationMode::tail, 1), "…");
  EXPECT_EQ(cut("Studio Display", TruncationMode::tail, 0), "…");
}

TEST(TruncationTest, InTheMiddleTheEndBeginsWithAWholeWordWhereThereIsRoom) {
  EXPECT_EQ(cut("Studio Display (Main)", TruncationMode::middle, 15), "Studio D…(Main)");
  EXPECT_EQ(cut("Laboratory Display (Main)", TruncationMode::middle, 23),
            "Laborato…Display (Main)");
  EXPECT_EQ(cut("Laboratory AB CDEFG", TruncationMode::middle, 13), "Laborat…CDEFG");
  // "Display (Main)" would leave too little for the beginning.
  EXPECT_EQ(cut("Laboratory Display (Main)", TruncationMode::middle, 19), "Laborator…ay (Main)");
}

TEST(TruncationTest, InTheMiddleNoBracketIsSplit) {
  EXPECT_EQ(cut("LaboratoryDisplay(2)(Main)", TruncationMode::middle, 14), "Laborat…(Main)");
  EXPECT_EQ(cut("LaboratoryDisplay(2)(Main)", TruncationMode::middle, 11), "Labo…(Main)");
  EXPECT_EQ(cut("LaboratoryDisplay(2)(Main)", TruncationMode::middle, 15), "Labor…(2)(Main)");
  EXPECT_EQ(cut("Laboratory（Conference2）", TruncationMode::middle, 12), "Laboratory（…");
}

TEST(TruncationTest, InTheMiddleBothEndsAreKeptAndTheResultFits) {
  const std::string line = "Laboratory Display (2) (Main)";
  for (int width = 0; width < 29; ++width) {
    const std::string text = cut(line, TruncationMode::middle, width);
    const std::size_t place = text.find(ellipsis);
    ASSERT_NE(place, std::string::npos) << width;
    EXPECT_TRUE(line.starts_with(text.substr(0, place))) << text;
    EXPECT_TRUE(line.ends_with(text.substr(place + ellipsis.size()))) << text;
    EXPECT_LE(widthOf(text), std::max(width, 1));
    EXPECT_GE(widthOf(text), width - 2) << text;
  }
}

TEST(TruncationTest, ALineThatFitsEndsInAnEllipsisBeforeAnotherLine) {
  EXPECT_EQ(cut("Display", TruncationMode::middle, 20), "Display…");
  EXPECT_EQ(cut("", TruncationMode::middle, 20), "…");
}

}  // namespace
}  // namespace orvane::ui
