// The pointer stays on the displays: clamping on random displays, compared with a search over all
// points, and the exceptions.
#include <algorithm>
#include <ostream>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/support/TestDisplays.hpp"

namespace orvane::desk {
namespace {

struct Frame {
  int x;
  int y;
  int width;
  int height;
};

std::ostream& operator<<(std::ostream& out, const Frame& frame) {
  return out << "[" << frame.x << "," << frame.y << " " << frame.width << "x" << frame.height
             << "]";
}

rc::Gen<Frame> genFrame() {
  return rc::gen::construct<Frame>(rc::gen::inRange(-15, 16), rc::gen::inRange(-15, 16),
                                   rc::gen::inRange(1, 12), rc::gen::inRange(1, 12));
}

rc::Gen<std::vector<Frame>> genFrames() {
  return rc::gen::resize(5, rc::gen::nonEmpty(rc::gen::container<std::vector<Frame>>(genFrame())));
}

void attachAll(Displays& displays, const std::vector<Frame>& frames) {
  std::uint32_t number = 1;
  for (const Frame& frame : frames) {
    RC_ASSERT(!displays.attach(
        displayOf(number++, "", CGRectMake(frame.x, frame.y, frame.width, frame.height))));
  }
}

bool holds(const CGRect& frame, int x, int y) {
  return x >= frame.origin.x && x <= frame.origin.x + frame.size.width - 1 && y >= frame.origin.y &&
         y <= frame.origin.y + frame.size.height - 1;
}

/// The point with integer coordinates in the frame that is nearest to the goal; unique for an
/// integer goal.
CGPoint nearestBySearch(const CGRect& frame, int goalX, int goalY) {
  CGPoint best{0, 0};
  int smallest = -1;
  for (int x = -40; x <= 40; ++x) {
    for (int y = -40; y <= 40; ++y) {
      const int distance = (x - goalX) * (x - goalX) + (y - goalY) * (y - goalY);
      if (holds(frame, x, y) && (smallest < 0 || distance < smallest)) {
        smallest = distance;
        best = CGPointMake(x, y);
      }
    }
  }
  return best;
}

RC_GTEST_PROP(PointerProperty, EndsAtTheGoalOrAtTheNearestPointOfItsDisplay, ()) {
  Displays displays;
  attachAll(displays, *genFrames());
  Pointer pointer(displays);
  pointer.displaysChanged();

  const auto goals = *rc::gen::container<std::vector<std::pair<int, int>>>(
      rc::gen::pair(rc::gen::inRange(-60, 61), rc::gen::inRange(-60, 61)));
  for (const auto& [x, y] : goals) {
    RC_ASSERT(pointer.displayIndex().has_value());
    const CGRect from = displays.globalFrames()[*pointer.displayIndex()];
    const auto& frames = displays.globalFrames();
    const bool isReached = std::any_of(
        frames.begin(), frames.end(),
        [&goalX = x, &goalY = y](const CGRect& frame) { return holds(frame, goalX, goalY); });
    pointer.settle(CGPointMake(x, y));
    const CGPoint expected = isReached ? CGPointMake(x, y) : nearestBySearch(from, x, y);
    RC_ASSERT(pointer.location().x == expected.x);
    RC_ASSERT(pointer.location().y == expected.y);
    RC_ASSERT(CGRectContainsPoint(frames[*pointer.displayIndex()], pointer.location()));
  }
}

RC_GTEST_PROP(PointerProperty, IsOnADisplayAfterEveryChangeAndMovesNoFartherThanNecessary, ()) {
  Displays displays;
  attachAll(displays, *genFrames());
  Pointer pointer(displays);
  pointer.displaysChanged();
  pointer.settle(CGPointMake(*rc::gen::inRange(-20, 21), *rc::gen::inRange(-20, 21)));
  const CGPoint before = pointer.location();

  std::vector<std::uint32_t> numbers;
  for (const Display& display : displays.all()) {
    numbers.push_back(display.number);
  }
  for (const std::uint32_t number : numbers) {
    const Frame frame = *genFrame();
    if (displays.count() > 1 && *rc::gen::arbitrary<bool>()) {
      RC_ASSERT(!displays.detach(number));
    } else {
      RC_ASSERT(
          !displays.setFrame(number, CGRectMake(frame.x, frame.y, frame.width, frame.height)));
    }
  }
  pointer.displaysChanged();

  const CGPoint after = pointer.location();
  RC_ASSERT(pointer.displayIndex().has_value());
  RC_ASSERT(CGRectContainsPoint(displays.globalFrames()[*pointer.displayIndex()], after));
  const auto distanceTo = [&before](CGPoint place) {
    return (place.x - before.x) * (place.x - before.x) +
           (place.y - before.y) * (place.y - before.y);
  };
  for (const CGRect& frame : displays.globalFrames()) {
    const CGPoint other =
        nearestBySearch(frame, static_cast<int>(before.x), static_cast<int>(before.y));
    RC_ASSERT(distanceTo(after) <= distanceTo(other));
  }
}

TEST(PointerTest, IsOnNoDisplayWhileThereIsNone) {
  const Displays displays;
  Pointer pointer(displays);
  pointer.displaysChanged();
  EXPECT_EQ(pointer.displayIndex(), std::nullopt);
  EXPECT_EQ(pointer.location().x, 0);
}

TEST(PointerTest, ADisplayThinnerThanAPointHasOnePosition) {
  Displays displays;
  ASSERT_FALSE(displays.attach(displayOf(1, "", {{0, 0}, {0.5, 0.25}})));
  Pointer pointer(displays);
  pointer.displaysChanged();
  pointer.settle({8, 8});
  EXPECT_EQ(pointer.location().x, 0);
  EXPECT_EQ(pointer.location().y, 0);
}

}  // namespace
}  // namespace orvane::desk
