// Tests of the mouse guard on the shim's event taps and displays.
#include <string>
#include <vector>

#include "Orvane/guard/DockMouseGuard.hpp"
#include "tests/contract/ContractFixture.hpp"
#include "tests/gnustep/shim/World.hpp"

namespace orvane {
namespace {

using gnustep::world;

class GuardOnTaps : public ContractFixture {
 protected:
  GuardOnTaps() {
    world().isTrusted = true;
    // The second is taller and begins higher: its lower edge reveals a wrong conversion of y.
    world().displays = {{1, leftUUID, "Left", CGRectMake(0, 0, 1000, 800), true},
                        {2, "", "Right", CGRectMake(1000, -100, 1200, 700), false}};
  }

  void TearDown() override { EXPECT_EQ(world().tapFaults, std::vector<std::string>()); }

  static void start(DockMouseGuard& guard) { guard.start(leftUUID, OrvaneModifier::option, false); }

  /// The pointer's y after a movement to a point.
  static double yAfter(double x, double y) {
    gnustep::movePointer(CGPointMake(x, y));
    return world().pointer.y;
  }

  /// A point at the lower edge of the second display, where the Dock must not appear.
  static constexpr double guardedX = 1500;
  static constexpr double guardedY = 599;
};

TEST_F(GuardOnTaps, ThePointerIsKeptFromTheLowerEdgeOfTheOtherDisplay) {
  DockMouseGuard guard;
  start(guard);
  EXPECT_LT(yAfter(guardedX, guardedY), guardedY);
  EXPECT_EQ(yAfter(guardedX, 500), 500);
  EXPECT_EQ(yAfter(500, 799), 799) << "the Dock is allowed here";
  guard.stop();
  EXPECT_EQ(yAfter(guardedX, guardedY), guardedY);
}

TEST_F(GuardOnTaps, TheModifierLetsThePointerPass) {
  DockMouseGuard guard;
  start(guard);
  world().heldModifiers = kCGEventFlagMaskAlternate;
  EXPECT_EQ(yAfter(guardedX, guardedY), guardedY);
  world().heldModifiers = 0;
  EXPECT_LT(yAfter(guardedX, guardedY), guardedY);
}

TEST_F(GuardOnTaps, ItStartsAndStopsWithoutLeavingATap) {
  DockMouseGuard guard;
  for (int time = 0; time < 50; ++time) {
    guard.start(leftUUID, OrvaneModifier::option, time % 2 == 0);
    EXPECT_EQ(gnustep::liveTaps(), 1);
    if (time % 3 == 0) {
      guard.stop();
      EXPECT_EQ(gnustep::liveTaps(), 0);
    }
    if (time % 7 == 0) {
      letTimePass(0.001);
    }
  }
  guard.stop();
  EXPECT_EQ(world().liveTapObjects, 0);
}

TEST_F(GuardOnTaps, ARunawayTakesTheTapDown) {
  DockMouseGuard guard;
  start(guard);
  for (int time = 0; time < 200; ++time) {
    (void)yAfter(guardedX, guardedY);
  }
  EXPECT_EQ(gnustep::enabledTaps(), 0);
  letTimePass(0.05);
  EXPECT_EQ(world().liveTapObjects, 0);
  EXPECT_FALSE(guard.isRunning());
  gnustep::announceDisplays();
  letTimePass(0.05);
  EXPECT_TRUE(guard.isRunning());
}

TEST_F(GuardOnTaps, DisplaysComeAndGo) {
  DockMouseGuard guard;
  start(guard);
  const auto both = world().displays;
  world().displays = {both[1]};
  gnustep::announceDisplays();
  letTimePass(0.05);
  EXPECT_FALSE(guard.isRunning());
  EXPECT_EQ(world().liveTapObjects, 0);
  world().displays = both;
  gnustep::announceDisplays();
  letTimePass(0.05);
  EXPECT_TRUE(guard.isRunning());
  EXPECT_LT(yAfter(guardedX, guardedY), guardedY);
}

TEST_F(GuardOnTaps, ATapThatTheSystemDisablesIsEnabledAgain) {
  DockMouseGuard guard;
  start(guard);
  for (const CGEventType reason : {kCGEventTapDisabledByTimeout, kCGEventTapDisabledByUserInput}) {
    gnustep::disableTaps(reason);
    EXPECT_EQ(gnustep::enabledTaps(), 1);
  }
}

TEST_F(GuardOnTaps, NothingIsReportedForAGuardThatIsGone) {
  {
    DockMouseGuard guard;
    guard.onEvent = [](const std::string& message) { ADD_FAILURE() << message; };
    start(guard);
    (void)yAfter(guardedX, guardedY);
    gnustep::announceDisplays();
  }
  letTimePass(0.05);
  EXPECT_EQ(world().liveTapObjects, 0);
}

}  // namespace
}  // namespace orvane
