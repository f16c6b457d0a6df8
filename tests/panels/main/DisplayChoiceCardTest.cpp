// The card that shows a display: its title by position and its role by place. ComponentLookTest.cpp
// and ComponentMotionTest.cpp test its look and motion.
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/panels/main/DisplayCardTexts.hpp"
#include "Orvane/panels/main/DisplayChoiceCard.hpp"
#include "tests/panels/ComponentFixture.hpp"

namespace orvane {
namespace {

class DisplayChoiceCardTest : public ComponentFixture {
 protected:
  void showCard(const std::string& name) {
    DisplayChoiceCard card;
    card.display.name = name;
    card.fallbackLabel = "Fallback";
    card.action = [this] { ++taps; };
    show(card, {200, 160});
  }

  int taps = 0;
};

TEST_F(DisplayChoiceCardTest, IsPressedAnywhereWithinItsBounds) {
  showCard("Studio");
  test.click({14, 80});
  test.click({186, 148});
  test.click({5, 80});
  EXPECT_EQ(taps, 2);
}

TEST_F(DisplayChoiceCardTest, FallsBackToItsLabelForADisplayWithoutAName) {
  showCard("");
  EXPECT_TRUE(draws("text \"Fallback\" 13/500")) << drawing();
  EXPECT_TRUE(test.element("Fallback"));
}

using DisplayCardTexts::fallbackLabel;
using DisplayCardTexts::roleLabel;

constexpr OrvaneLanguage english = OrvaneLanguage::english;
constexpr OrvaneLanguage chinese = OrvaneLanguage::chinese;

DisplaySnapshot at(CGRect frame, bool isMain = false) {
  DisplaySnapshot display;
  display.frame = frame;
  display.isMain = isMain;
  return display;
}

/// The place of another display relative to a main one at (0, 0) of 1000 by 800 points.
struct Arrangement {
  const char* name;
  CGRect frame;
  const char* role;
};

std::ostream& operator<<(std::ostream& stream, const Arrangement& arrangement) {
  return stream << arrangement.name;
}

class RoleLabelTest : public testing::TestWithParam<Arrangement> {};

TEST_P(RoleLabelTest, FollowsTheCentresOfTheFrames) {
  // Neither moves when both move.
  for (const CGPoint origin : {CGPoint{0, 0}, CGPoint{-3000, -2000}}) {
    CGRect frame = GetParam().frame;
    frame.origin.x += origin.x;
    frame.origin.y += origin.y;
    const std::vector<DisplaySnapshot> displays{at(frame), at({origin, {1000, 800}}, true)};
    EXPECT_EQ(roleLabel(displays[0], displays, english), GetParam().role);
    EXPECT_EQ(roleLabel(displays[1], displays, english), "Main Display");
  }
}

INSTANTIATE_TEST_SUITE_P(
    Arrangements, RoleLabelTest,
    testing::Values(
        Arrangement{"right", {{1000, 0}, {1000, 800}}, "Right Display"},
        Arrangement{"left", {{-1000, 0}, {1000, 800}}, "Left Display"},
        Arrangement{"above, narrower", {{250, 800}, {500, 400}}, "Upper Display"},
        Arrangement{"below", {{0, -800}, {1000, 800}}, "Lower Display"},
        Arrangement{"above and slightly to the left", {{-400, 800}, {1000, 800}}, "Upper Display"},
        Arrangement{"below and almost as far right", {{799, -800}, {1000, 800}}, "Lower Display"},
        Arrangement{"a tie, right and up", {{800, 800}, {1000, 800}}, "Right Display"},
        Arrangement{"a tie, left and down", {{-800, -800}, {1000, 800}}, "Left Display"},
        Arrangement{"half a point decides", {{800, 800.5}, {1000, 800}}, "Upper Display"},
        Arrangement{"half a point to the right", {{0.5, 0}, {1000, 800}}, "Right Display"},
        Arrangement{"mirrored", {{0, 0}, {1000, 800}}, "External Display"},
        Arrangement{"the same centre, smaller", {{250, 200}, {500, 400}}, "External Display"},
        Arrangement{"origins say left, centres right", {{-100, 0}, {3000, 800}}, "Right Display"},
        Arrangement{
            "origins say below, centres above", {{0, -100}, {1000, 2000}}, "Upper Display"}));

TEST(DisplayCardTextsTest, WithoutAMainDisplayAllOthersAreExternal) {
  const std::vector<DisplaySnapshot> displays{at({{0, 0}, {10, 10}}), at({{10, 0}, {10, 10}})};
  EXPECT_EQ(roleLabel(displays[1], displays, english), "External Display");
  EXPECT_EQ(roleLabel(displays[0], {}, english), "External Display");
}

TEST(DisplayCardTextsTest, TheFirstOfSeveralMainDisplaysIsTheReference) {
  const std::vector<DisplaySnapshot> displays{at({{0, 0}, {10, 10}}), at({{20, 0}, {10, 10}}, true),
                                              at({{-20, 0}, {10, 10}}, true)};
  EXPECT_EQ(roleLabel(displays[0], displays, english), "Left Display");
  EXPECT_EQ(roleLabel(displays[2], displays, english), "Main Display");
}

TEST(DisplayCardTextsTest, RolesInChinese) {
  const std::vector<DisplaySnapshot> displays{at({{0, 0}, {10, 10}}, true), at({{10, 0}, {10, 10}}),
                                              at({{-10, 0}, {10, 10}}),     at({{0, 10}, {10, 10}}),
                                              at({{0, -10}, {10, 10}}),     at({{0, 0}, {10, 10}})};
  std::vector<std::string> roles;
  for (const DisplaySnapshot& display : displays) {
    roles.push_back(roleLabel(display, displays, chinese));
  }
  EXPECT_EQ(roles, (std::vector<std::string>{"主显示器", "右侧显示器", "左侧显示器", "上方显示器",
                                             "下方显示器", "外接显示器"}));
}

TEST(DisplayCardTextsTest, TheTitleOfADisplayWithoutANameDependsOnItsPosition) {
  const std::vector<std::pair<std::string, std::string>> titles{{"Built-in Display", "内建显示器"},
                                                                {"Studio Display", "Studio 显示器"},
                                                                {"HDMI Display", "HDMI 显示器"},
                                                                {"Display 4", "显示器 4"}};
  for (std::size_t position = 0; position < titles.size(); ++position) {
    EXPECT_EQ(fallbackLabel(position, english), titles[position].first);
    EXPECT_EQ(fallbackLabel(position, chinese), titles[position].second);
  }
  EXPECT_EQ(fallbackLabel(9, english), "Display 10");
}

}  // namespace
}  // namespace orvane
