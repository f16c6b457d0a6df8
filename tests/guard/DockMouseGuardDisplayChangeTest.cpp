// How the guard follows display changes: it pauses, resumes and updates its zones.
#include "tests/guard/GuardFixture.hpp"

namespace orvane {
namespace {

using DockMouseGuardDisplayChangeTest = GuardFixture;

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
  desk::attach(machine, desk::monitorAbove());
  EXPECT_EQ(takeMessages(), Messages{targetGone}) << "each change is reported";
  desk::attach(machine, desk::laptop());
  expectGuarding();
  EXPECT_EQ(takeMessages(), Messages{startedWithOneZone});
}

TEST_F(DockMouseGuardDisplayChangeTest, AnInstalledTapIsKeptAndSeesTheNewZones) {
  startPinned();
  ASSERT_EQ(machine.displays.setFrame(2, {{1920, 0}, {1000, 600}}), std::nullopt);
  EXPECT_NE(machine.eventTaps.find(1), nullptr) << "the first tap";
  EXPECT_EQ(guard->snapshot().zones, (Zones{{{{1920, 1068}, {1000, 12}}, {0, -12}}}));
  EXPECT_EQ(outcomeOf(inTheZone), movedBack);
  EXPECT_EQ(outcomeOf({3000, 1075}), (CGPoint{3000, 1075}));
  desk::setDockOrientation(machine, "right");
  EXPECT_EQ(takeMessages(), Messages{"Blocked Dock trigger 1 times"}) << "no second start";
  EXPECT_EQ(guard->snapshot().zones, (Zones{{{{2908, 480}, {12, 600}}, {-12, 0}}}));
}

TEST_F(DockMouseGuardDisplayChangeTest, LosingAllZonesPausesSilently) {
  startPinned();
  desk::detach(machine, 2);
  EXPECT_EQ(takeMessages(), Messages{});
  expectWaiting();
  desk::attach(machine, desk::monitorAtTheRight());
  EXPECT_EQ(takeMessages(), Messages{startedWithOneZone});
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
