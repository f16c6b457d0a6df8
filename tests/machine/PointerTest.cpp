// The pointer stays on the displays.
#include <cmath>

#include <gtest/gtest.h>

#include "tests/support/TestDisplays.hpp"

namespace orvane::desk {
namespace {

class PointerTest : public testing::Test {
 protected:
  void attach(std::uint32_t number, CGRect frame) {
    ASSERT_FALSE(displays.attach(displayOf(number, "", frame)));
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

TEST_F(PointerTest, MovesToAPointOnADisplay) {
  attach(1, {{0, 0}, {100, 50}});
  attach(2, {{100, 0}, {100, 50}});
  pointer.settle({150.25, 49.75});
  expectPlace(150.25, 49.75);
  EXPECT_EQ(pointer.displayIndex(), 1U);
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

}  // namespace
}  // namespace orvane::desk
