// Scrolling wanted and focused views into view, with a margin.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ScrollView.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

class ScrollViewTest : public testing::Test {
 protected:
  static constexpr double margin = 6;
  static constexpr double cardWidth = 40;

  ScrollViewTest() {
    test.show([this](const Environment&) -> View {
      std::vector<View> cards;
      for (const std::string& name : names) {
        cards.push_back(Button([] {}, Rectangle().frame(cardWidth, 20))
                            .style(PlainButtonStyle{})
                            .accessibilityLabel(name)
                            .scrollsIntoView(name == wanted, cards.size())
                            .id(name));
      }
      return ScrollView(HStack(10, cards).animation(Curve::linear(1), wanted), margin);
    });
  }

  void want(const std::string& name) {
    wanted = name;
    test.update();
  }
  double left(const std::string& name) { return test.element(name)->frame.x; }
  double right(const std::string& name) { return test.element(name)->frame.right(); }

  std::vector<std::string> names{"a", "b", "c", "d", "e"};
  std::string wanted = "a";
  TestHost test{{100, 40}};
};

TEST_F(ScrollViewTest, TheMarginLiesAroundTheContent) {
  EXPECT_EQ(left("a"), margin);
  test.host->scroll({50, 20}, 1000, 0);
  EXPECT_EQ(right("e"), 100 - margin);
}

TEST_F(ScrollViewTest, ContentThatFitsDoesNotScroll) {
  names = {"a"};
  want("a");
  test.host->scroll({50, 20}, 1000, 0);
  EXPECT_EQ(left("a"), margin);
}

TEST_F(ScrollViewTest, WhatIsWantedIsInSightAsSoonAsItAppears) {
  names.clear();
  want("e");
  names = {"a", "b", "c", "d", "e", "f"};
  test.host->invalidate(Curve::linear(1));
  test.host->layoutIfNeeded();
  EXPECT_EQ(right("e"), 100 - margin);
}

TEST_F(ScrollViewTest, WhatIsWantedStaysInSightWhenOthersBeforeItGo) {
  names = {"a", "b", "c", "d", "e", "f", "g", "h"};
  want("h");
  want("d");
  test.at(10);
  test.host->scroll({50, 20}, 1000, 0);
  names = {"d", "e", "f", "g", "h"};
  want("d");
  EXPECT_EQ(left("d"), margin);
}

TEST_F(ScrollViewTest, AViewThatBecomesWantedIsScrolledIntoView) {
  test.at(10);
  want("d");
  EXPECT_EQ(left("a"), margin);
  test.at(10.5);
  const double start = margin + 3 * 50;
  const double end = 100 - margin - cardWidth;
  EXPECT_NEAR(left("d"), (start + end) / 2, 1e-9);
  EXPECT_TRUE(test.host->nextFrameWanted());
  test.at(11);
  EXPECT_EQ(right("d"), 100 - margin);
  EXPECT_FALSE(test.host->nextFrameWanted());
  want("b");
  test.at(12);
  EXPECT_EQ(left("b"), margin);
}

TEST_F(ScrollViewTest, ItJumpsWhereMotionIsReduced) {
  test.appear({.reduceMotion = true});
  want("d");
  EXPECT_EQ(right("d"), 100 - margin);
  EXPECT_FALSE(test.host->nextFrameWanted());
}

TEST_F(ScrollViewTest, AViewThatStaysWantedDoesNotScrollAgain) {
  test.host->scroll({50, 20}, 1000, 0);
  const double place = left("e");
  want("a");
  test.at(5);
  EXPECT_EQ(left("e"), place);
}

TEST_F(ScrollViewTest, WhatIsInSightAlreadyScrollsNothing) {
  test.host->setSize({margin + 2 * cardWidth + 10 + margin, 40});
  want("b");
  test.at(5);
  EXPECT_EQ(left("a"), margin);
}

TEST_F(ScrollViewTest, TheWheelTakesOverWhereTheContentIsSeen) {
  test.at(10);
  want("e");
  test.at(10.5);
  const double seen = left("e");
  EXPECT_TRUE(test.host->scroll({50, 20}, -5, 0));
  EXPECT_NEAR(left("e"), seen + 5, 1e-9);
  test.at(11);
  EXPECT_NEAR(left("e"), seen + 5, 1e-9);
}

TEST_F(ScrollViewTest, TheWheelReachesTheEndOfAMotionAtOnce) {
  want("e");
  test.at(0.5);
  EXPECT_TRUE(test.host->scroll({50, 20}, 1000, 0));
  EXPECT_EQ(right("e"), 100 - margin);
}

TEST_F(ScrollViewTest, TheKeyboardKeepsTheMarginToo) {
  test.press(Key::tab);
  test.press(Key::tab);
  test.press(Key::tab);
  EXPECT_EQ(right("c"), 100 - margin);
  test.press(Key::tab, true);
  test.press(Key::tab, true);
  EXPECT_EQ(left("a"), margin);
}

TEST_F(ScrollViewTest, TheRingStaysWithinWhatIsScrolled) {
  test.press(Key::tab);
  const std::string ring = "stroke rounded(4 8 44 24 r8 continuous)";
  EXPECT_NE(test.drawing().find(ring), std::string::npos) << test.drawing();
  test.host->scroll({50, 20}, 30, 0);
  test.host->takeDirtyRects();
  const std::string drawing = test.drawing();
  const auto stroke = drawing.find("stroke rounded(-26 8 44 24 r8 continuous)");
  const auto clip = drawing.rfind("clip rectangle(0 10 100 20)", stroke);
  ASSERT_NE(stroke, std::string::npos) << drawing;
  ASSERT_NE(clip, std::string::npos) << drawing;
  EXPECT_EQ(drawing.substr(clip, stroke - clip).find("restore"), std::string::npos) << drawing;
}

}  // namespace
}  // namespace orvane::ui
