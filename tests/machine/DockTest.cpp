// The Dock follows the pointer, hides and appears, and counts its appearances.
#include <string>

#include <gtest/gtest.h>

#include "tests/support/MachineFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane::desk {
namespace {

class DockTest : public MachineFixture {
 protected:
  void attach(std::uint32_t number, CGRect frame, bool asMain = false) {
    desk::attach(machine, displayOf(number, "", frame), asMain);
  }
  /// Two displays of 1000 by 800 side by side.
  void attachPair() {
    attach(1, {{0, 0}, {1000, 800}});
    attach(2, {{1000, 0}, {1000, 800}});
  }
  void setEdge(PropertyValue value) { setDockOrientation(machine, std::move(value)); }
  void setAutoHide(bool hides) { setDockAutoHide(machine, hides); }
  /// A movement from a point well inside the display.
  void push(CGPoint from, double dx, double dy) {
    machine.mouse.moveTo(from);
    machine.mouse.moveBy(dx, dy);
  }

  Dock& dock = machine.dock;
};

TEST_F(DockTest, BelongsToTheMainDisplayBeforeItFirstAppears) {
  attachPair();
  EXPECT_EQ(dock.displayNumber(), 1U);
  EXPECT_TRUE(dock.isVisible());
  EXPECT_EQ(dock.shownFraction(), 1);
  EXPECT_TRUE(dock.reveals().empty());
  EXPECT_TRUE(CGRectEqualToRect(dock.frame(), CGRectMake(200, 730, 600, 70)));
}

TEST_F(DockTest, TouchingTheEdgeOfAnotherDisplayWithoutPressureDoesNotSummonIt) {
  attachPair();
  machine.mouse.moveTo({1500, 799.5});
  EXPECT_EQ(dock.displayNumber(), 1U);
  machine.mouse.moveBy(0, 0.5);
  EXPECT_EQ(dock.displayNumber(), 2U);
}

TEST_F(DockTest, AppearsAtTheLeftAndTheRightEdge) {
  attach(1, {{0, 0}, {1000, 800}});
  attach(2, {{0, 800}, {1000, 800}});
  setEdge(std::string("left"));
  EXPECT_EQ(dock.edge(), DockEdge::left);
  push({500, -400}, -600, 0);
  EXPECT_EQ(dock.displayNumber(), 2U);
  EXPECT_TRUE(CGRectEqualToRect(dock.frame(), CGRectMake(0, -640, 70, 480)));
  setEdge(std::string("right"));
  push({500, 400}, 600, 0);
  EXPECT_EQ(dock.displayNumber(), 1U);
  EXPECT_TRUE(CGRectEqualToRect(dock.frame(), CGRectMake(930, 160, 70, 480)));
}

TEST_F(DockTest, ANeighbourBehindTheEdgeKeepsItAway) {
  // The third display is above the right half of the first and extends beyond it.
  attach(1, {{0, 0}, {1000, 800}});
  attach(3, {{500, 800}, {1000, 800}});
  // To the left of x 1000 the first display is behind the edge; the pointer crosses over to it.
  push({700, -10}, 0, 5);
  EXPECT_EQ(dock.displayNumber(), 1U);
  machine.mouse.moveTo({1200, -10});
  machine.mouse.moveBy(0, 60);
  EXPECT_EQ(dock.displayNumber(), 3U);
}

TEST_F(DockTest, ANeighbourUpToTwoPointsAwayIsStillANeighbour) {
  attach(1, {{0, 0}, {1000, 800}});
  // Its lower edge is 1.5 points above the first display.
  attach(2, {{0, 801.5}, {1000, 800}});
  machine.mouse.moveTo({500, -400});
  // The movement ends in the gap, so the pointer stays at the lower edge of the second.
  machine.mouse.moveTo({500, -0.5});
  EXPECT_EQ(machine.pointer.location().y, -2.5);
  EXPECT_EQ(dock.displayNumber(), 1U);
  ASSERT_FALSE(machine.displays.setFrame(2, {{0, 802.5}, {1000, 800}}));
  machine.mouse.moveTo({500, -0.5});
  EXPECT_EQ(dock.displayNumber(), 2U);
}

TEST_F(DockTest, AMirrorOfItsDisplayIsNotAnotherDisplay) {
  attach(1, {{0, 0}, {1000, 800}});
  attach(2, {{0, 0}, {1000, 800}});
  push({500, 780}, 0, 60);
  EXPECT_EQ(dock.displayNumber(), 1U);
  EXPECT_TRUE(dock.reveals().empty());
}

TEST_F(DockTest, AFlatDisplayIsNotItsOwnNeighbour) {
  attach(1, {{0, 0}, {1000, 800}});
  attach(2, {{1000, 0}, {1000, 2}});
  push({1500, 798.5}, 0, 60);
  EXPECT_EQ(dock.displayNumber(), 2U);
}

TEST_F(DockTest, SlidesInOnTheDisplayWhereItAppears) {
  attachPair();
  machine.advance(1);
  push({1500, 780}, 0, 60);
  EXPECT_EQ(dock.shownFraction(), 0);
  machine.advance(0.125);
  EXPECT_DOUBLE_EQ(dock.shownFraction(), 0.5);
}

TEST_F(DockTest, MovesToTheMainDisplayUncountedWhenItsOwnIsDetached) {
  attachPair();
  push({1500, 780}, 0, 60);
  ASSERT_FALSE(machine.displays.detach(2));
  EXPECT_EQ(dock.displayNumber(), 1U);
  EXPECT_EQ(dock.revealCount(1), 0);
  EXPECT_EQ(dock.revealCount(2), 1);
  ASSERT_FALSE(machine.displays.detach(1));
  EXPECT_EQ(dock.displayNumber(), std::nullopt);
}

TEST_F(DockTest, OnTheMainDisplayItFollowsTheMainDisplay) {
  attachPair();
  ASSERT_FALSE(machine.displays.setMain(2));
  EXPECT_EQ(dock.displayNumber(), 2U);
  push({500, 780}, 0, 60);
  attach(3, {{2000, 0}, {1000, 800}}, true);
  EXPECT_EQ(dock.displayNumber(), 1U);
}

TEST_F(DockTest, StaysOnADisplayWhoseNumberChanges) {
  attachPair();
  push({1500, 780}, 0, 60);
  ASSERT_FALSE(machine.displays.renumber(2, 8));
  EXPECT_EQ(dock.displayNumber(), 8U);
  EXPECT_EQ(dock.revealCount(2), 1);
}

TEST_F(DockTest, AutoHiddenItAppearsAtItsEdgeAndHidesOutsideOfItsArea) {
  attachPair();
  machine.mouse.moveTo({500, 400});
  setAutoHide(true);
  EXPECT_FALSE(dock.isVisible());
  machine.mouse.moveTo({500, 798});
  EXPECT_FALSE(dock.isVisible());
  machine.mouse.moveTo({500, 799});
  EXPECT_TRUE(dock.isVisible());
  EXPECT_EQ(dock.revealCount(1), 1);
  machine.mouse.moveTo({500, 731});
  EXPECT_TRUE(dock.isVisible());
  machine.mouse.moveTo({500, 729});
  EXPECT_FALSE(dock.isVisible());
  EXPECT_EQ(dock.revealCount(1), 1);
}

TEST_F(DockTest, AutoHiddenItStaysHiddenAtAnEdgeWithANeighbour) {
  attach(1, {{0, 0}, {1000, 800}}, true);
  attach(2, {{0, -800}, {1000, 800}});
  setAutoHide(true);
  machine.mouse.moveTo({500, 799});
  EXPECT_FALSE(dock.isVisible());
}

TEST_F(DockTest, AutoHiddenItAppearsOnAnotherDisplayThatIsPressed) {
  attachPair();
  machine.mouse.moveTo({500, 400});
  setAutoHide(true);
  push({1500, 780}, 0, 60);
  EXPECT_EQ(dock.displayNumber(), 2U);
  EXPECT_TRUE(dock.isVisible());
  EXPECT_EQ(dock.revealCount(2), 1);
  EXPECT_EQ(dock.revealCount(1), 0);
}

TEST_F(DockTest, ASlideCanBeReversed) {
  attachPair();
  machine.mouse.moveTo({500, 400});
  setAutoHide(true);
  machine.advance(1);
  EXPECT_EQ(dock.shownFraction(), 0);
  machine.mouse.moveTo({500, 799});
  EXPECT_EQ(dock.shownFraction(), 0);
  machine.advance(0.1);
  EXPECT_DOUBLE_EQ(dock.shownFraction(), 0.4);
  machine.mouse.moveTo({500, 400});
  EXPECT_DOUBLE_EQ(dock.shownFraction(), 0.4);
  machine.advance(0.05);
  EXPECT_DOUBLE_EQ(dock.shownFraction(), 0.2);
  machine.advance(1);
  EXPECT_EQ(dock.shownFraction(), 0);
}

}  // namespace
}  // namespace orvane::desk
