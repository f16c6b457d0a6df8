// Titles by position and roles by place, against a table of arrangements.
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/panels/main/DisplayCardTexts.hpp"

namespace orvane {
namespace {

constexpr OrvaneLanguage english = OrvaneLanguage::english;
constexpr OrvaneLanguage chinese = OrvaneLanguage::chinese;

DisplaySnapshot at(CGRect frame, bool isMain = false) {
  DisplaySnapshot display;
  display.id = isMain ? "main" : "other";
  display.frame = frame;
  display.isMain = isMain;
  return display;
}

struct Arrangement {
  std::string name;
  CGRect main;
  CGRect other;
  std::string english;
  std::string chinese;
};

std::ostream& operator<<(std::ostream& stream, const Arrangement& arrangement) {
  return stream << arrangement.name;
}

class RoleLabelTest : public testing::TestWithParam<Arrangement> {};

TEST_P(RoleLabelTest, FollowsTheCentresOfTheFrames) {
  const Arrangement& given = GetParam();
  const std::vector<DisplaySnapshot> displays{at(given.other), at(given.main, true)};
  EXPECT_EQ(DisplayCardTexts::roleLabel(displays[0], displays, english), given.english);
  EXPECT_EQ(DisplayCardTexts::roleLabel(displays[0], displays, chinese), given.chinese);
  EXPECT_EQ(DisplayCardTexts::roleLabel(displays[1], displays, english), "Main Display");
  EXPECT_EQ(DisplayCardTexts::roleLabel(displays[1], displays, chinese), "主显示器");
}

INSTANTIATE_TEST_SUITE_P(
    Arrangements, RoleLabelTest,
    testing::Values(Arrangement{"at the right", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(1000, 0, 1000, 800), "Right Display", "右侧显示器"},
                    Arrangement{"at the left, with a negative origin", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(-1000, 0, 1000, 800), "Left Display", "左侧显示器"},
                    Arrangement{"exactly above", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(0, 800, 1000, 800), "Upper Display", "上方显示器"},
                    Arrangement{"exactly above, narrower", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(250, 800, 500, 400), "Upper Display", "上方显示器"},
                    Arrangement{"exactly below, with a negative origin",
                                CGRectMake(0, 0, 1000, 800), CGRectMake(0, -800, 1000, 800),
                                "Lower Display", "下方显示器"},
                    Arrangement{"above and a little to the left", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(-400, 800, 1000, 800), "Upper Display", "上方显示器"},
                    Arrangement{"below and a little to the right", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(799, -800, 1000, 800), "Lower Display", "下方显示器"},
                    Arrangement{"a tie, right and up", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(800, 800, 1000, 800), "Right Display", "右侧显示器"},
                    Arrangement{"a tie, right and down", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(800, -800, 1000, 800), "Right Display", "右侧显示器"},
                    Arrangement{"a tie, left and up", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(-800, 800, 1000, 800), "Left Display", "左侧显示器"},
                    Arrangement{"a tie, left and down", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(-800, -800, 1000, 800), "Left Display", "左侧显示器"},
                    Arrangement{"farther to the right than up", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(1000, 799, 1000, 800), "Right Display", "右侧显示器"},
                    Arrangement{"mirrored: the same centre", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(0, 0, 1000, 800), "External Display", "外接显示器"},
                    Arrangement{"the same centre, smaller", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(250, 200, 500, 400), "External Display", "外接显示器"},
                    Arrangement{"origins say left, centres say right", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(-100, 0, 3000, 800), "Right Display", "右侧显示器"},
                    Arrangement{"origins say below, centres say above", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(0, -100, 1000, 2000), "Upper Display", "上方显示器"},
                    Arrangement{"both in the negative", CGRectMake(-3000, -2000, 1000, 800),
                                CGRectMake(-4000, -2000, 1000, 800), "Left Display", "左侧显示器"},
                    Arrangement{"half a point decides", CGRectMake(0, 0, 1000, 800),
                                CGRectMake(800, 800.5, 1000, 800), "Upper Display", "上方显示器"}));

TEST(DisplayCardTextsTest, WithoutAMainDisplayEveryOtherIsAnExternalOne) {
  const std::vector<DisplaySnapshot> displays{at(CGRectMake(0, 0, 10, 10)),
                                              at(CGRectMake(10, 0, 10, 10))};
  EXPECT_EQ(DisplayCardTexts::roleLabel(displays[1], displays, english), "External Display");
  EXPECT_EQ(DisplayCardTexts::roleLabel(displays[1], displays, chinese), "外接显示器");
  EXPECT_EQ(DisplayCardTexts::roleLabel(displays[0], {}, english), "External Display");
}

TEST(DisplayCardTextsTest, TheFirstOfSeveralMainDisplaysIsTheReference) {
  const std::vector<DisplaySnapshot> displays{at(CGRectMake(0, 0, 10, 10)),
                                              at(CGRectMake(20, 0, 10, 10), true),
                                              at(CGRectMake(-20, 0, 10, 10), true)};
  EXPECT_EQ(DisplayCardTexts::roleLabel(displays[0], displays, english), "Left Display");
  EXPECT_EQ(DisplayCardTexts::roleLabel(displays[2], displays, english), "Main Display");
}

TEST(DisplayCardTextsTest, TheTitleOfADisplayWithoutANameIsFixedByItsPosition) {
  using DisplayCardTexts::fallbackLabel;
  EXPECT_EQ(fallbackLabel(0, english), "Built-in Display");
  EXPECT_EQ(fallbackLabel(0, chinese), "内建显示器");
  EXPECT_EQ(fallbackLabel(1, english), "Studio Display");
  EXPECT_EQ(fallbackLabel(1, chinese), "Studio 显示器");
  EXPECT_EQ(fallbackLabel(2, english), "HDMI Display");
  EXPECT_EQ(fallbackLabel(2, chinese), "HDMI 显示器");
}

TEST(DisplayCardTextsTest, AFourthDisplayWithoutANameIsDisplay4) {
  using DisplayCardTexts::fallbackLabel;
  EXPECT_EQ(fallbackLabel(3, english), "Display 4");
  EXPECT_EQ(fallbackLabel(3, chinese), "显示器 4");
  EXPECT_EQ(fallbackLabel(9, english), "Display 10");
  EXPECT_EQ(fallbackLabel(9, chinese), "显示器 10");
}

}  // namespace
}  // namespace orvane
