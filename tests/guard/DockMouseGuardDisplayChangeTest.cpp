// How the guard follows display changes: it pauses, resumes and updates its zones.
#include <gtest/gtest.h>

#include "tests/guard/GuardLifeFixture.hpp"

namespace orvane {
namespace {

class DockMouseGuardDisplayChangeTest : public GuardLifeFixture {};

TEST_F(DockMouseGuardDisplayChangeTest, AStartWithoutZonesReportsItAndWaitsForTheDisplaysToChange) {
  desk::detach(machine, 2);
  guard->start(desk::uuidNamed('A'), OrvaneModifier::option, false);
  EXPECT_EQ(takeMessages(), Messages{noZones});
  expectWaiting();
  desk::attach(machine, desk::monitorAtTheRight());
  expectGuarding();
  EXPECT_EQ(takeMessages(), Messages{startedWithOneZone});
}

TEST_F(DockMouseGuardDisplayChangeTest, PinningWithoutATargetGivesNoZones) {
  guard->start("", OrvaneModifier::option, false);
  EXPECT_EQ(takeMessages(), Messages{noZones});
  expectWaiting();
  desk::attach(machine, desk::monitorAbove());
  EXPECT_EQ(takeMessages(), Messages{}) << "there is no target that could be unavailable";
  expectWaiting();
}

TEST_F(DockMouseGuardDisplayChangeTest, ADetachedTargetGivesNoZonesUntilItIsAttached) {
  guard->start(desk::uuidNamed('C'), OrvaneModifier::option, false);
  EXPECT_EQ(takeMessages(), Messages{noZones});
  expectWaiting();
  desk::attach(machine, desk::monitorAbove());
  EXPECT_EQ(guard->snapshot().zones, (Zones{zoneOfTheLaptop, zoneOfTheMonitor}));
  EXPECT_EQ(takeMessages(), Messages{"Mouse guard started. Trigger zones: 2"});
}

TEST_F(DockMouseGuardDisplayChangeTest, ATapThatIsRefusedIsTriedAgainWhenTheDisplaysChange) {
  machine.eventTaps.setRefusesCreation(true);
  guard->start(desk::uuidNamed('A'), OrvaneModifier::option, false);
  EXPECT_EQ(takeMessages(), Messages{tapWasRefused});
  EXPECT_FALSE(guard->isRunning());
  EXPECT_TRUE(guard->snapshot().isObservingScreens);
  EXPECT_EQ(guard->snapshot().zones, Zones{zoneOfTheMonitor}) << "the zones stay";
  EXPECT_EQ(machine.runLoop.sources().size(), 0U);

  desk::attach(machine, desk::monitorAbove());
  EXPECT_EQ(takeMessages(), Messages{tapWasRefused});
  machine.eventTaps.setRefusesCreation(false);
  desk::detach(machine, 3);
  expectGuarding();
  EXPECT_EQ(takeMessages(), Messages{startedWithOneZone});
}

TEST_F(DockMouseGuardDisplayChangeTest, UnpluggingTheTargetPausesAndPluggingItInResumes) {
  startPinned();
  desk::detach(machine, 1);
  expectWaiting();
  EXPECT_EQ(takeMessages(), Messages{targetGone});
  desk::attach(machine, desk::laptop());
  expectGuarding();
  EXPECT_EQ(takeMessages(), Messages{startedWithOneZone});
}

TEST_F(DockMouseGuardDisplayChangeTest, APauseEndsATemporaryUnlock) {
  for (const std::uint32_t unplugged : {1U, 2U}) {
    startPinned();
    unlocks.clear();
    outcomeOf(outsideEveryZone, kCGEventFlagMaskAlternate);
    desk::detach(machine, unplugged);
    machine.runDue();
    EXPECT_EQ(unlocks, (Unlocks{true, false})) << unplugged;
    desk::attach(machine, unplugged == 1 ? desk::laptop() : desk::monitorAtTheRight(),
                 unplugged == 1);
    outcomeOf(outsideEveryZone, kCGEventFlagMaskAlternate);
    machine.runDue();
    EXPECT_EQ(unlocks, (Unlocks{true, false, true})) << "the key is still held";
    guard->stop();
    machine.runDue();
  }
}

TEST_F(DockMouseGuardDisplayChangeTest, EachChangeWhileTheTargetIsGoneIsReported) {
  startPinned();
  desk::detach(machine, 1);
  desk::attach(machine, desk::monitorAbove());
  EXPECT_EQ(takeMessages(), (Messages{targetGone, targetGone}));
}

TEST_F(DockMouseGuardDisplayChangeTest, ATargetWithANewNumberIsStillTheTarget) {
  startPinned();
  ASSERT_EQ(machine.displays.renumber(1, 44), std::nullopt);
  expectGuarding();
  EXPECT_EQ(guard->snapshot().zones, Zones{zoneOfTheMonitor});
  EXPECT_EQ(takeMessages(), Messages{});
}

TEST_F(DockMouseGuardDisplayChangeTest, ATargetStoredByNumberIsLostWithTheNumber) {
  guard->start("1", OrvaneModifier::option, false);
  takeMessages();
  ASSERT_EQ(machine.displays.renumber(1, 44), std::nullopt);
  EXPECT_EQ(takeMessages(), Messages{targetGone});
  expectWaiting();
}

TEST_F(DockMouseGuardDisplayChangeTest, AnInstalledTapIsKeptAndSeesTheNewZones) {
  startPinned();
  ASSERT_EQ(machine.displays.setFrame(2, {{1920, 0}, {1000, 600}}), std::nullopt);
  EXPECT_NE(machine.eventTaps.find(1), nullptr) << "the first tap";
  EXPECT_EQ(guard->snapshot().zones, (Zones{{{{1920, 1068}, {1000, 12}}, {0, -12}}}));
  EXPECT_EQ(outcomeOf({2500, 1075}), (CGPoint{2500, 1063}));
  EXPECT_EQ(outcomeOf({3000, 1075}), (CGPoint{3000, 1075}));
  machine.runDue();
  EXPECT_EQ(messages, Messages{"Blocked Dock trigger 1 times"}) << "no second start is reported";
}

TEST_F(DockMouseGuardDisplayChangeTest, AChangeOfTheDocksEdgeUpdatesTheZonesAtOnce) {
  startPinned();
  desk::setDockOrientation(machine, "right");
  EXPECT_EQ(takeMessages(), Messages{}) << "the tap is kept";
  EXPECT_EQ(guard->snapshot().zones, (Zones{{{{3828, 0}, {12, 1080}}, {-12, 0}}}));
  desk::attach(machine, desk::monitorAbove());
  EXPECT_EQ(guard->snapshot().zones,
            (Zones{{{{3828, 0}, {12, 1080}}, {-12, 0}}, {{{1908, -1080}, {12, 1080}}, {-12, 0}}}));
}

TEST_F(DockMouseGuardDisplayChangeTest, AfterAShutOffAMoveOfTheDockRestartsTheGuard) {
  startPinned();
  for (const bool isByEdge : {true, false}) {
    block(180);
    machine.runDue();
    messages.clear();
    expectWaiting();
    if (isByEdge) {
      desk::setDockOrientation(machine, "right");
      EXPECT_EQ(takeMessages(), Messages{startedWithOneZone});
      desk::setDockOrientation(machine, "bottom");
      EXPECT_EQ(takeMessages(), Messages{}) << "the tap is kept";
    } else {
      machine.mouse.moveTo({2500, 1050});
      machine.mouse.moveBy(0, 60);
      EXPECT_EQ(machine.dock.displayNumber(), 2U);
      EXPECT_EQ(takeMessages(), Messages{startedWithOneZone});
    }
    expectGuarding();
    EXPECT_EQ(guard->snapshot().zones, Zones{zoneOfTheMonitor});
  }
}

TEST_F(DockMouseGuardDisplayChangeTest, LosingAllZonesPausesSilently) {
  startPinned();
  desk::detach(machine, 2);
  EXPECT_EQ(takeMessages(), Messages{});
  expectWaiting();
  desk::attach(machine, desk::monitorAtTheRight());
  EXPECT_EQ(takeMessages(), Messages{startedWithOneZone});
  desk::setDockOrientation(machine, "top");
  desk::attach(machine, desk::monitorAbove());
  EXPECT_EQ(takeMessages(), Messages{});
  expectWaiting();
}

TEST_F(DockMouseGuardDisplayChangeTest, WhenAllDisplaysAreBlockedUnpluggingOneOnlyChangesTheZones) {
  guard->start(desk::uuidNamed('A'), OrvaneModifier::option, true);
  takeMessages();
  desk::detach(machine, 1);
  expectGuarding();
  EXPECT_EQ(guard->snapshot().zones.size(), 1U);
  EXPECT_EQ(takeMessages(), Messages{});
  desk::detach(machine, 2);
  EXPECT_EQ(takeMessages(), Messages{});
  expectWaiting();
  desk::attach(machine, desk::laptop());
  expectGuarding();
  EXPECT_EQ(takeMessages(), Messages{startedWithOneZone});
}

}  // namespace
}  // namespace orvane
