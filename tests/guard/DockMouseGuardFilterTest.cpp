// The handling of each pointer event: moved out of a zone or passed, counted, reported; and the
// shut-off for runaway blocking.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/machine/Event.hpp"
#include "tests/support/GuardFixture.hpp"

namespace orvane {
namespace {

using Messages = std::vector<std::string>;
using Unlocks = std::vector<bool>;

constexpr std::uint64_t shiftKey = 0x20000;
constexpr std::uint64_t controlKey = 0x40000;
constexpr std::uint64_t optionKey = 0x80000;
constexpr std::uint64_t commandKey = 0x100000;

class DockMouseGuardFilterTest : public GuardFixture {
 protected:
  /// Blocks until the guard is one block short of the runaway limit.
  void blockUpToTheLimit() { block(179); }
};

TEST_F(DockMouseGuardFilterTest, AMovementIntoAZoneIsMovedTwelvePointsBack) {
  guard->start("2", OrvaneModifier::option, false);
  EXPECT_EQ(guard->snapshot().zones,
            (std::vector<TriggerZone>{{{{0, 1068}, {1920, 12}}, {0, -12}}}));
  EXPECT_EQ(outcomeOf({500, 1075}), (CGPoint{500, 1063}));
}

TEST_F(DockMouseGuardFilterTest, TheFilterReturnsTheSameEvent) {
  startPinned();
  for (const CGPoint place : {inTheZone, outsideEveryZone}) {
    for (const std::uint64_t flags : {std::uint64_t{0}, optionKey}) {
      __CGEvent event{kCGEventMouseMoved, static_cast<CGEventFlags>(flags), place};
      EXPECT_EQ(guard->eventTapCallback(event.type, &event), &event);
      EXPECT_EQ(event.flags, flags);
    }
  }
}

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

  EXPECT_EQ(outcomeOf(inTheZone), (CGPoint{2500, 1063}));
  machine.runDue();
  EXPECT_EQ(unlocks, (Unlocks{true, false}));
  outcomeOf(inTheZone);
  outcomeOf(outsideEveryZone);
  machine.runDue();
  EXPECT_EQ(unlocks, (Unlocks{true, false}));
}

TEST_F(DockMouseGuardFilterTest, AQuickPressAndReleaseIsReportedInOrder) {
  startPinned();
  outcomeOf(outsideEveryZone, optionKey);
  outcomeOf(outsideEveryZone);
  outcomeOf(outsideEveryZone, optionKey);
  machine.runDue();
  EXPECT_EQ(unlocks, (Unlocks{true, false, true}));
}

TEST_F(DockMouseGuardFilterTest, OtherModifiersAloneUnlockNothing) {
  for (const OrvaneModifier modifier : OrvaneModifier::allCases) {
    startPinned(modifier);
    const std::uint64_t others = (shiftKey | controlKey | optionKey | commandKey | 0x10000) &
                                 ~std::uint64_t{modifier.flagMask()};
    EXPECT_EQ(outcomeOf(inTheZone, others), (CGPoint{2500, 1063})) << modifier.rawValue();
    EXPECT_EQ(outcomeOf(inTheZone, modifier.flagMask()), inTheZone) << modifier.rawValue();
  }
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
  machine.runDue();
  EXPECT_EQ(messages, Messages{"Blocked Dock trigger 1 times"});
  machine.advance(0.001);
  block();
  machine.runDue();
  EXPECT_EQ(messages, (Messages{"Blocked Dock trigger 1 times", "Blocked Dock trigger 12 times"}));
  // A second counts from the last report, not from the last block.
  machine.advance(0.5);
  block();
  machine.advance(0.5);
  block();
  machine.runDue();
  EXPECT_EQ(messages.back(), "Blocked Dock trigger 14 times");
}

TEST_F(DockMouseGuardFilterTest, The180thBlockWithinTwoSecondsShutsTheTapOffSilently) {
  startPinned();
  blockUpToTheLimit();
  machine.runDue();
  EXPECT_TRUE(guard->isRunning());
  EXPECT_TRUE(machine.eventTaps.isAnyEnabled());
  EXPECT_EQ(messages, Messages{"Blocked Dock trigger 1 times"});
  machine.advance(1.5);

  EXPECT_EQ(outcomeOf(inTheZone), (CGPoint{2500, 1063})) << "the last event is still moved";
  EXPECT_FALSE(machine.eventTaps.isAnyEnabled()) << "at once, in the callback";
  EXPECT_TRUE(guard->isRunning()) << "the rest is left to the main queue";
  EXPECT_EQ(outcomeOf(inTheZone), inTheZone);
  machine.runDue();
  EXPECT_FALSE(guard->isRunning());
  EXPECT_EQ(machine.eventTaps.aliveCount(), 0U);
  EXPECT_TRUE(guard->snapshot().zones.empty());
  EXPECT_EQ(guard->snapshot().recentBlockCount, 0U);
  EXPECT_EQ(guard->snapshot().blockedCount, 180);
  EXPECT_EQ(messages, Messages{"Blocked Dock trigger 1 times"});
  EXPECT_TRUE(guard->snapshot().isObservingScreens);
}

TEST_F(DockMouseGuardFilterTest, SteadyBlockingBelowTheLimitGoesOnForever) {
  startPinned();
  // 175 in two seconds.
  for (int count = 0; count < 2000; ++count) {
    block();
    machine.advance(2.0 / 175);
  }
  EXPECT_TRUE(guard->isRunning());
  EXPECT_EQ(guard->snapshot().blockedCount, 2000);
  EXPECT_EQ(messages.size(), 23U) << "once in each begun second of the 22.8";
}

TEST_F(DockMouseGuardFilterTest, AfterAShutOffADisplayChangeBringsTheGuardBack) {
  startPinned();
  block(180);
  machine.runDue();
  messages.clear();
  desk::attach(machine, desk::monitorAbove());
  EXPECT_TRUE(guard->isRunning());
  block();
  machine.runDue();
  EXPECT_EQ(messages,
            (Messages{"Mouse guard started. Trigger zones: 1", "Blocked Dock trigger 181 times"}))
      << "the time of the last report is forgotten, the total is not";
}

TEST_F(DockMouseGuardFilterTest, AfterAShutOffAStartBringsTheGuardBack) {
  startPinned();
  block(180);
  machine.runDue();
  startPinned();
  EXPECT_TRUE(guard->isRunning());
  blockUpToTheLimit();
  EXPECT_TRUE(machine.eventTaps.isAnyEnabled()) << "blocks from before do not count";
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

TEST_F(DockMouseGuardFilterTest, ATapThatTheSystemDisabledIsEnabledAgainAtOnce) {
  startPinned();
  for (const CGEventType reason : {kCGEventTapDisabledByTimeout, kCGEventTapDisabledByUserInput}) {
    machine.eventTaps.disableAll(reason, inTheZone);
    EXPECT_TRUE(machine.eventTaps.isAnyEnabled());
    EXPECT_EQ(outcomeOf(inTheZone), (CGPoint{2500, 1063}));
  }
}

TEST_F(DockMouseGuardFilterTest, ATapWithoutThePermissionIsNotEnabledAgain) {
  startPinned();
  // The permission is revoked while the event is on its way: the tap still exists.
  machine.permission.onChange(nullptr);
  machine.permission.setTrusted(false);
  machine.eventTaps.disableAll(kCGEventTapDisabledByTimeout, inTheZone);
  EXPECT_FALSE(machine.eventTaps.isAnyEnabled());
}

TEST_F(DockMouseGuardFilterTest, TheFifthDisablingWithinTenSecondsShutsTheGuardOff) {
  startPinned();
  for (const double pause : {2.5, 2.5, 2.5, 2.5}) {
    machine.eventTaps.disableAll(kCGEventTapDisabledByTimeout, inTheZone);
    EXPECT_TRUE(machine.eventTaps.isAnyEnabled());
    machine.advance(pause);
  }
  // Ten seconds after the first to the nanosecond.
  machine.eventTaps.disableAll(kCGEventTapDisabledByUserInput, inTheZone);
  EXPECT_FALSE(machine.eventTaps.isAnyEnabled()) << "at once";
  machine.runDue();
  EXPECT_FALSE(guard->isRunning());
  EXPECT_TRUE(guard->snapshot().zones.empty());
  EXPECT_EQ(messages, Messages{});

  machine.advance(1);
  EXPECT_FALSE(guard->isRunning()) << "as after the shut-off for rapid blocking";
  desk::attach(machine, desk::monitorAbove());
  EXPECT_TRUE(guard->isRunning());
  for (int count = 0; count < 4; ++count) {
    machine.eventTaps.disableAll(kCGEventTapDisabledByTimeout, inTheZone);
  }
  machine.runDue();
  EXPECT_TRUE(guard->isRunning()) << "the earlier five are forgotten";
}

TEST_F(DockMouseGuardFilterTest, DisablingsFartherApartDoNotShutTheGuardOff) {
  startPinned();
  for (int count = 0; count < 50; ++count) {
    machine.eventTaps.disableAll(kCGEventTapDisabledByTimeout, inTheZone);
    machine.advance(2.501);
  }
  EXPECT_TRUE(machine.eventTaps.isAnyEnabled());
}

TEST_F(DockMouseGuardFilterTest, AShutOffEndsATemporaryUnlock) {
  startPinned();
  outcomeOf(inTheZone, optionKey);
  for (int count = 0; count < 5; ++count) {
    machine.eventTaps.disableAll(kCGEventTapDisabledByTimeout, inTheZone);
  }
  machine.runDue();
  EXPECT_EQ(unlocks, (Unlocks{true, false}));
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

TEST_F(DockMouseGuardFilterTest, NoMovementReachesTheGuardedEdgeWithAHeldOrAFreeCursor) {
  using Cursor = desk::Mouse::Cursor;
  startPinned();
  for (const Cursor cursor : {Cursor::held, Cursor::free}) {
    machine.mouse.setCursor(cursor);
    machine.mouse.moveTo({2500, 500});
    for (int count = 0; count < 100; ++count) {
      EXPECT_LT(machine.mouse.moveBy(0, 40).reached.y, 1068);
      machine.advance(0.1);
    }
    EXPECT_EQ(machine.pointer.location().y < 1068, cursor == Cursor::held);
  }
  EXPECT_EQ(machine.dock.revealCount(2), 0);
  EXPECT_EQ(machine.dock.displayNumber(), 1U);
}

}  // namespace
}  // namespace orvane
