// The pointer stays on the displays.
#include <cmath>

#include <gtest/gtest.h>

#include "desk/machine/Pointer.hpp"

namespace orvane::desk {
namespace {

class PointerTest : public testing::Test {
 protected:
  void attach(std::uint32_t number, CGRect frame) {
    Display display;
    display.number = number;
    display.frame = frame;
    ASSERT_FALSE(displays.attach(display));
    pointer.displaysChanged();
  }
  void expectPlace(double x, double y) const {
    EXPECT_EQ(pointer.location().x, x);
    EXPECT_EQ(pointer.location().y, y);
  }

  Displays displays;
  Pointer pointer{displays};
};

TEST_F(PointerTest, IsOnNoDisplayWhileThereIsNone) {
  EXPECT_EQ(pointer.displayIndex(), std::nullopt);
  pointer.displaysChanged();
  expectPlace(0, 0);
}

TEST_F(PointerTest, GoesWhereADisplayIs) {
  attach(1, {{0, 0}, {100, 50}});
  attach(2, {{100, 0}, {100, 50}});
  pointer.settle({150.25, 49.75});
  expectPlace(150.25, 49.75);
  EXPECT_EQ(pointer.displayIndex(), 1U);
}

TEST_F(PointerTest, IsClampedOnePointInsideTheFarEdgesOfTheDisplayItCameFrom) {
  attach(1, {{0, 0}, {100, 50}});
  attach(2, {{100, 0}, {100, 50}});
  pointer.settle({50, 25});
  pointer.settle({150, 60});
  expectPlace(99, 49);
  EXPECT_EQ(pointer.displayIndex(), 0U);
  pointer.settle({-5, -5});
  expectPlace(0, 0);
}

TEST_F(PointerTest, CrossesAGapWhenTheMovementReachesTheOtherDisplay) {
  attach(1, {{0, 0}, {100, 50}});
  attach(2, {{110, 0}, {100, 50}});
  pointer.settle({50, 25});
  pointer.settle({105, 25});
  expectPlace(99, 25);
  pointer.settle({110, 25});
  expectPlace(110, 25);
}

TEST_F(PointerTest, ADisplayThinnerThanAPointHasOnePosition) {
  attach(1, {{0, 0}, {0.5, 0.25}});
  pointer.settle({8, 8});
  expectPlace(0, 0);
}

TEST_F(PointerTest, ANonFinitePositionDoesNotMoveIt) {
  attach(1, {{0, 0}, {100, 50}});
  pointer.settle({10, 20});
  pointer.settle({std::nan(""), 5});
  expectPlace(10, 20);
}

TEST_F(PointerTest, MovesToTheNearestPositionWhenItsDisplayIsDetached) {
  attach(1, {{0, 0}, {100, 50}});
  attach(2, {{100, 0}, {100, 50}});
  attach(3, {{200, 0}, {100, 50}});
  pointer.settle({190, 30});
  ASSERT_FALSE(displays.detach(2));
  pointer.displaysChanged();
  expectPlace(200, 30);
  EXPECT_EQ(displays.all()[*pointer.displayIndex()].number, 3U);
}

TEST_F(PointerTest, StaysWhenAnotherDisplayReplacesItsOwn) {
  attach(1, {{0, 0}, {100, 50}});
  attach(2, {{0, 0}, {100, 50}});
  pointer.settle({10, 20});
  ASSERT_FALSE(displays.detach(1));
  pointer.displaysChanged();
  expectPlace(10, 20);
  EXPECT_EQ(pointer.displayIndex(), 0U);
}

TEST_F(PointerTest, FollowsADisplayThatShrinks) {
  attach(1, {{0, 0}, {100, 50}});
  pointer.settle({90, 40});
  ASSERT_FALSE(displays.setFrame(1, {{0, 0}, {60, 30}}));
  pointer.displaysChanged();
  expectPlace(59, 29);
}

}  // namespace
}  // namespace orvane::desk
