// The synthetic font.
#include <limits>

#include <gtest/gtest.h>

#include "tests/support/SyntheticTextMeasurer.hpp"

namespace orvane::ui {
namespace {

constexpr double unlimited = std::numeric_limits<double>::infinity();

std::string broken(const std::string& text, double width, int limit = 0) {
  SyntheticTextMeasurer measurer;
  std::string result;
  for (const TextLine& line : measurer.layout(text, Font::system(10), width, limit).lines) {
    result += line.text + "|";
  }
  return result;
}

TEST(SyntheticTextMeasurerTest, ALineIsHalfItsSizePerCharacterWide) {
  SyntheticTextMeasurer measurer;
  const TextLayout layout = measurer.layout("hello", Font::system(10), unlimited, 0);
  EXPECT_EQ(layout.size(), (Size{25, 10}));
  EXPECT_EQ(layout.ascent, 7.5);
  EXPECT_EQ(measurer.layout("固定", Font::system(10), unlimited, 0).size(), (Size{20, 10}));
}

TEST(SyntheticTextMeasurerTest, BreaksBetweenWordsAtEveryWidth) {
  const std::string text = "aa bbb c";
  const std::vector<std::pair<double, std::string>> expected{
      {45, "aa bbb c|"},  {40, "aa bbb c|"},  {39, "aa bbb|c|"},   {30, "aa bbb|c|"},
      {29, "aa|bbb c|"},  {25, "aa|bbb c|"},  {24, "aa|bbb|c|"},   {15, "aa|bbb|c|"},
      {14, "aa|bb|b|c|"}, {10, "aa|bb|b|c|"}, {5, "a|a|b|b|b|c|"}, {0, "a|a|b|b|b|c|"}};
  for (const auto& [width, lines] : expected) {
    EXPECT_EQ(broken(text, width), lines) << width;
  }
  EXPECT_EQ(broken("固定显示器", 25), "固定|显示|器|");
  EXPECT_EQ(broken("a\nb", unlimited), "a|b|");
  EXPECT_EQ(broken("", unlimited), "|");
}

TEST(SyntheticTextMeasurerTest, ALimitCutsWithAnEllipsis) {
  EXPECT_EQ(broken("hello", 25, 1), "hello|");
  EXPECT_EQ(broken("hello", 24, 1), "hel…|");
  EXPECT_EQ(broken("aa bbb c", 15, 2), "aa|bb…|");
  EXPECT_EQ(broken("hello\nyou", unlimited, 1), "hello…|");
  EXPECT_EQ(broken("hello\nyou", 25, 1), "hell…|");
  EXPECT_EQ(broken("a\nb", unlimited, 2), "a|b|");
  EXPECT_EQ(broken("aa bbb\nc", 15, 2), "aa|bb…|");
  EXPECT_EQ(broken("\nb", unlimited, 1), "…|");
}

}  // namespace
}  // namespace orvane::ui
