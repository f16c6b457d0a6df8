// The list of displays: valid requests, the main display, coordinates, and groups of changes.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "tests/support/TestDisplays.hpp"

namespace orvane::desk {
namespace {

Display display(std::uint32_t number, CGRect frame) {
  return displayOf(number, "", frame);
}

class DisplaysTest : public testing::Test {
 protected:
  DisplaysTest() {
    displays.onChange([this] { ++changes; });
  }

  Displays displays;
  int changes = 0;
};

TEST_F(DisplaysTest, InvalidRequestsReportTheProblemAndChangeNothing) {
  ASSERT_FALSE(displays.attach(display(1, {{0, 0}, {100, 50}})));
  changes = 0;
  EXPECT_EQ(displays.attach(display(1, {{0, 0}, {10, 10}})), "there is a display 1 already");
  EXPECT_EQ(displays.attach(display(2, {{0, 0}, {0, 10}})),
            "the frame of a display must not be empty");
  EXPECT_EQ(displays.attach(display(2, {{0, 0}, {10, -10}})),
            "the frame of a display must not be empty");
  EXPECT_EQ(displays.attach(display(2, {{std::nan(""), 0}, {10, 10}})),
            "the frame of a display must be finite");
  EXPECT_EQ(displays.setFrame(1, {{0, 0}, {std::numeric_limits<double>::infinity(), 10}}),
            "the frame of a display must be finite");
  EXPECT_EQ(displays.detach(2), "there is no display 2");
  EXPECT_EQ(displays.setFrame(2, {{0, 0}, {10, 10}}), "there is no display 2");
  EXPECT_EQ(displays.renumber(2, 3), "there is no display 2");
  EXPECT_EQ(displays.setMain(2), "there is no display 2");
  EXPECT_EQ(displays.endChanges(), "no group of changes is open");
  ASSERT_FALSE(displays.attach(display(2, {{0, 0}, {10, 10}})));
  EXPECT_EQ(displays.renumber(1, 2), "there is a display 2 already");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(displays.all()[0].frame.size.width, 100);
  EXPECT_EQ(displays.all()[0].number, 1U);
}

TEST_F(DisplaysTest, TheFirstIsMainUntilOneIsMadeSo) {
  EXPECT_EQ(displays.main(), nullptr);
  ASSERT_FALSE(displays.attach(display(1, {{0, 0}, {100, 50}})));
  ASSERT_FALSE(displays.attach(display(2, {{100, 0}, {100, 50}})));
  EXPECT_EQ(displays.main()->number, 1U);
  ASSERT_FALSE(displays.setMain(2));
  EXPECT_EQ(displays.main()->number, 2U);
  ASSERT_FALSE(displays.attach(display(3, {{200, 0}, {100, 50}}), true));
  EXPECT_EQ(displays.main()->number, 3U);
  ASSERT_FALSE(displays.detach(3));
  EXPECT_EQ(displays.main()->number, 1U);
}

TEST_F(DisplaysTest, ARenumberedDisplayIsTheSameDisplay) {
  ASSERT_FALSE(displays.attach(display(1, {{0, 0}, {100, 50}})));
  ASSERT_FALSE(displays.attach(display(2, {{100, 0}, {100, 50}}), true));
  const std::uint64_t identity = displays.find(2)->identity;
  ASSERT_FALSE(displays.renumber(2, 9));
  EXPECT_EQ(displays.find(2), nullptr);
  EXPECT_EQ(displays.find(9)->identity, identity);
  EXPECT_EQ(displays.main()->number, 9U);
}

TEST_F(DisplaysTest, AReattachedDisplayHasANewIdentity) {
  ASSERT_FALSE(displays.attach(display(1, {{0, 0}, {100, 50}})));
  const std::uint64_t identity = displays.find(1)->identity;
  ASSERT_FALSE(displays.detach(1));
  ASSERT_FALSE(displays.attach(display(1, {{0, 0}, {100, 50}})));
  EXPECT_NE(displays.find(1)->identity, identity);
}

TEST_F(DisplaysTest, TheHeightOfTheFirstDisplayFlipsCoordinates) {
  ASSERT_FALSE(displays.attach(display(1, {{0, 0}, {1000, 800}})));
  // Its top edge is 100 above that of the first, so it begins at y -100 in global coordinates.
  ASSERT_FALSE(displays.attach(display(2, {{1000, 300}, {500, 600}})));
  ASSERT_FALSE(displays.attach(display(3, {{0, -200}, {500, 200}})));
  EXPECT_TRUE(CGRectEqualToRect(displays.globalFrames()[0], CGRectMake(0, 0, 1000, 800)));
  EXPECT_TRUE(CGRectEqualToRect(displays.globalFrames()[1], CGRectMake(1000, -100, 500, 600)));
  EXPECT_TRUE(CGRectEqualToRect(displays.globalFrames()[2], CGRectMake(0, 800, 500, 200)));
  EXPECT_TRUE(CGRectEqualToRect(displays.flipped(CGRectMake(1000, -100, 500, 600)),
                                displays.all()[1].frame));
  EXPECT_EQ(displays.flipped(CGPointMake(10, 30)).y, 770);
}

TEST_F(DisplaysTest, ANewHeightOfTheFirstDisplayMovesTheOthers) {
  ASSERT_FALSE(displays.attach(display(1, {{0, 0}, {1000, 800}})));
  ASSERT_FALSE(displays.attach(display(2, {{1000, 0}, {500, 600}})));
  ASSERT_FALSE(displays.setFrame(1, {{0, 0}, {1000, 900}}));
  EXPECT_EQ(displays.globalFrames()[1].origin.y, 300);
  ASSERT_FALSE(displays.detach(1));
  EXPECT_EQ(displays.globalFrames()[0].origin.y, 0);
}

TEST_F(DisplaysTest, TheDisplayUnderAPointIsThePreferredOneIfItContainsIt) {
  ASSERT_FALSE(displays.attach(display(1, {{0, 0}, {100, 50}})));
  ASSERT_FALSE(displays.attach(display(2, {{0, 0}, {100, 50}})));
  EXPECT_EQ(displays.indexContaining({5, 5}), 0U);
  EXPECT_EQ(displays.indexContaining({5, 5}, 1), 1U);
  EXPECT_EQ(displays.indexContaining({5, 5}, 99), 0U);
  EXPECT_EQ(displays.indexContaining({100, 5}), std::nullopt);
  EXPECT_EQ(displays.indexContaining({0, 50}), std::nullopt);
  EXPECT_EQ(displays.indexContaining({0, 0}), 0U);
}

}  // namespace
}  // namespace orvane::desk
