// The handling of each pointer event: moved out of a zone or passed, counted, reported; and the
// shut-off for runaway blocking.
#include "desk/machine/Event.hpp"
#include "tests/guard/GuardFixture.hpp"

namespace orvane {
namespace {

using DockMouseGuardFilterTest = GuardFixture;

TEST_F(DockMouseGuardFilterTest, WhileTheModifierIsHeldAMovePassesAndIsReportedOnce) {
  startPinned();
  EXPECT_EQ(outcomeOf(inTheZone, optionKey), inTheZone);
  EXPECT_TRUE(guard->snapshot().isTemporarilyUnlocked);
  EXPECT_EQ(unlocks, Unlocks{}) << "reported only after the event has been passed on";
  machine.runDue();
  EXPECT_EQ(unlocks, Unlocks{true});
  outcomeOf(inTheZone, optionKey);
  outcomeOf(outsideEveryZone, optionKey);
  machine.runDue();
  EXPECT_EQ(unlocks, Unlocks{true});
  EXPECT_EQ(guard->snapshot().blockedCount, 0);

  EXPECT_EQ(outcomeOf(inTheZone), movedBack);
  machine.runDue();
  EXPECT_EQ(unlocks, (Unlocks{true, false}));
  outcomeOf(inTheZone);
  outcomeOf(outsideEveryZone);
  machine.runDue();
  EXPECT_EQ(unlocks, (Unlocks{true, false}));
}

TEST_F(DockMouseGuardFilterTest, AMovementIntoTheZonesOfMirroredDisplaysIsBlockedOnce) {
  ASSERT_EQ(machine.displays.setFrame(2, desk::laptop().frame), std::nullopt);
  startPreventing();
  ASSERT_EQ(guard->snapshot().zones, (Zones{zoneOfTheLaptop, zoneOfTheLaptop}));
  EXPECT_EQ(outcomeOf({500, 1075}), (CGPoint{500, 1063}));
  EXPECT_EQ(guard->snapshot().blockedCount, 1);
}

TEST_F(DockMouseGuardFilterTest, AQuickPressAndReleaseIsReportedInOrder) {
  startPinned();
  outcomeOf(outsideEveryZone, optionKey);
  outcomeOf(outsideEveryZone);
  outcomeOf(outsideEveryZone, optionKey);
  machine.runDue();
  EXPECT_EQ(unlocks, (Unlocks{true, false, true}));
}

TEST_F(DockMouseGuardFilterTest, TheCallbacksAreOptional) {
  guard->onEvent = nullptr;
  guard->onTemporaryUnlockChanged = nullptr;
  startPinned();
  outcomeOf(inTheZone, optionKey);
  outcomeOf(inTheZone);
  machine.runDue();
  EXPECT_EQ(guard->snapshot().blockedCount, 1);
}

TEST_F(DockMouseGuardFilterTest, TheNextReportComesAfterAFullSecondWithTheRunningTotal) {
  startPinned();
  block(10);
  machine.advance(0.999);
  block();
  EXPECT_EQ(takeMessages(), Messages{"Blocked Dock trigger 1 times"});
  machine.advance(0.001);
  block();
  EXPECT_EQ(takeMessages(), Messages{"Blocked Dock trigger 12 times"});
  // A second counts from the last report, not from the last block.
  machine.advance(0.5);
  block();
  machine.advance(0.5);
  block();
  EXPECT_EQ(takeMessages(), Messages{"Blocked Dock trigger 14 times"});
}

TEST_F(DockMouseGuardFilterTest, The180thBlockWithinTwoSecondsShutsTheTapOffSilently) {
  startPinned();
  block(179);
  EXPECT_EQ(takeMessages(), Messages{"Blocked Dock trigger 1 times"});
  expectGuarding();
  machine.advance(1.5);

  EXPECT_EQ(outcomeOf(inTheZone), movedBack) << "the last event is still moved";
  EXPECT_FALSE(machine.eventTaps.isAnyEnabled()) << "at once, in the callback";
  EXPECT_TRUE(guard->isRunning()) << "the rest is left to the main queue";
  EXPECT_EQ(outcomeOf(inTheZone), inTheZone);
  EXPECT_EQ(takeMessages(), Messages{});
  expectWaiting();
  EXPECT_EQ(guard->snapshot().recentBlockCount, 0U);
  EXPECT_EQ(guard->snapshot().blockedCount, 180);
}

TEST_F(DockMouseGuardFilterTest, PendingReportsAndAPendingShutOffDoNothingOnceTheGuardIsGone) {
  startPinned();
  outcomeOf(inTheZone, optionKey);
  block(180);
  guard.reset();
  machine.runDue();
  EXPECT_EQ(machine.eventTaps.aliveCount(), 0U);
  EXPECT_EQ(messages, Messages{});
  EXPECT_EQ(unlocks, Unlocks{});
}

TEST_F(DockMouseGuardFilterTest, ATapWithoutThePermissionIsNotEnabledAgain) {
  startPinned();
  // The permission is revoked while the event is on its way: the tap still exists.
  machine.permission.onChange(nullptr);
  machine.permission.setTrusted(false);
  disableTap();
  EXPECT_FALSE(machine.eventTaps.isAnyEnabled());
}

TEST_F(DockMouseGuardFilterTest, TheFifthDisablingWithinTenSecondsShutsTheGuardOff) {
  startPinned();
  for (const CGEventType reason : {kCGEventTapDisabledByTimeout, kCGEventTapDisabledByUserInput,
                                   kCGEventTapDisabledByTimeout, kCGEventTapDisabledByTimeout}) {
    disableTap(reason);
    EXPECT_EQ(outcomeOf(inTheZone), movedBack) << "the tap was enabled at once";
    machine.advance(2.5);
  }
  takeMessages();
  // Ten seconds after the first to the nanosecond.
  disableTap(kCGEventTapDisabledByUserInput);
  EXPECT_FALSE(machine.eventTaps.isAnyEnabled()) << "at once";
  EXPECT_EQ(takeMessages(), Messages{});
  expectWaiting();

  machine.advance(1);
  EXPECT_FALSE(guard->isRunning()) << "as after the shut-off for rapid blocking";
  desk::attach(machine, desk::monitorAbove());
  expectGuarding();
  for (int count = 0; count < 4; ++count) {
    disableTap();
  }
  machine.runDue();
  EXPECT_TRUE(guard->isRunning()) << "the earlier five are forgotten";
}

TEST_F(DockMouseGuardFilterTest, DisablingsFartherApartDoNotShutTheGuardOff) {
  startPinned();
  for (int count = 0; count < 50; ++count) {
    disableTap();
    machine.advance(2.501);
  }
  EXPECT_TRUE(machine.eventTaps.isAnyEnabled());
}

TEST_F(DockMouseGuardFilterTest, ANoticeFromTheSystemIsNotTreatedAsAMovement) {
  startPinned();
  for (const CGEventType reason : {kCGEventTapDisabledByTimeout, kCGEventTapDisabledByUserInput}) {
    __CGEvent event{reason, kCGEventFlagMaskAlternate, inTheZone};
    EXPECT_EQ(guard->eventTapCallback(reason, &event), &event);
    EXPECT_EQ(event.location, inTheZone);
    __CGEvent nothing{reason, CGEventFlags{}, inTheZone};
    guard->eventTapCallback(reason, &nothing);
    EXPECT_EQ(nothing.location, inTheZone);
  }
  machine.runDue();
  EXPECT_EQ(unlocks, Unlocks{});
  EXPECT_EQ(messages, Messages{});
  EXPECT_EQ(guard->snapshot().blockedCount, 0);
}

TEST_F(DockMouseGuardFilterTest, WithoutATapThereIsNothingToEnableAgain) {
  __CGEvent event{kCGEventTapDisabledByTimeout, CGEventFlags{}, inTheZone};
  EXPECT_EQ(guard->eventTapCallback(event.type, &event), &event);
  EXPECT_FALSE(guard->isRunning());
}

}  // namespace
}  // namespace orvane
