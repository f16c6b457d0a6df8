// Truncated lines, with characters that are all one point wide.
#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/ui/draw/Truncation.hpp"

namespace orvane::ui {
namespace {

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
