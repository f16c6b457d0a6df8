// The guard's life cycle: starting, stopping, and its messages to its owner.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/guard/DockMouseGuard.hpp"
#include "desk/machine/RunLoop.hpp"
#include "tests/guard/GuardLifeFixture.hpp"

namespace orvane {
namespace {

class DockMouseGuardTest : public GuardLifeFixture {};

TEST_F(DockMouseGuardTest, StartingGuardsEveryDisplayButTheTarget) {
  guard->start(desk::uuidNamed('A'), OrvaneModifier::control, false);
  expectGuarding();
  EXPECT_EQ(guard->snapshot().zones, Zones{zoneOfTheMonitor});
  EXPECT_EQ(guard->snapshot().lockedDisplayIdentifier, desk::uuidNamed('A'));
  EXPECT_EQ(guard->snapshot().overrideModifier, OrvaneModifier::control);
  EXPECT_FALSE(guard->snapshot().blocksAllDisplays);
  EXPECT_EQ(messages, Messages{}) << "reported on the main queue only";
  EXPECT_EQ(takeMessages(), Messages{startedWithOneZone});
}

TEST_F(DockMouseGuardTest, BlockingAllDisplaysGuardsASingleOneAndNeedsNoTarget) {
  desk::detach(machine, 2);
  guard->start("", OrvaneModifier::option, true);
  EXPECT_EQ(guard->snapshot().zones, Zones{zoneOfTheLaptop});
  EXPECT_TRUE(guard->isSetTo(desk::uuidNamed('A'), OrvaneModifier::option, true)) << "any target";
  EXPECT_EQ(takeMessages(), Messages{startedWithOneZone});
}

TEST_F(DockMouseGuardTest, TheTapIsAnActiveFilterOfMouseMovedEventsInTheCommonModes) {
  startPinned();
  const desk::EventTap* const tap = machine.eventTaps.find(1);
  ASSERT_NE(tap, nullptr);
  EXPECT_EQ(tap->eventsOfInterest, 0x20U);
  EXPECT_FALSE(tap->isListenOnly);
  EXPECT_TRUE(tap->isEnabled);
  EXPECT_EQ(tap->userInfo, guard.get());
  EXPECT_EQ(tap->sourceModes, desk::RunLoop::commonModes);
}

TEST_F(DockMouseGuardTest, TheTapComesBehindTheOthers) {
  CGPoint seen{};
  const auto port = CFRef<CFMachPortRef>::owning(CGEventTapCreate(
      kCGSessionEventTap, kCGTailAppendEventTap, kCGEventTapOptionListenOnly, 0x20,
      [](CGEventTapProxy, CGEventType, CGEventRef event, void* userInfo) {
        *static_cast<CGPoint*>(userInfo) = CGEventGetLocation(event);
        return event;
      },
      &seen));
  const auto source = CFRef<CFRunLoopSourceRef>::owning(
      CFMachPortCreateRunLoopSource(kCFAllocatorDefault, port.get(), 0));
  CFRunLoopAddSource(CFRunLoopGetCurrent(), source.get(), kCFRunLoopCommonModes);
  startPinned();
  block();
  EXPECT_EQ(seen, inTheZone) << "an earlier tap sees where the pointer was going";
  CFRunLoopRemoveSource(CFRunLoopGetCurrent(), source.get(), kCFRunLoopCommonModes);
  CFMachPortInvalidate(port.get());
}

TEST_F(DockMouseGuardTest, WithoutPermissionAStartOnlyReportsIt) {
  machine.permission.setTrusted(false);
  guard->start(desk::uuidNamed('A'), OrvaneModifier::command, true);
  expectIdle();
  EXPECT_EQ(guard->snapshot().lockedDisplayIdentifier, "");
  EXPECT_EQ(guard->snapshot().overrideModifier, OrvaneModifier::option);
  EXPECT_FALSE(guard->snapshot().blocksAllDisplays);
  EXPECT_EQ(takeMessages(), Messages{notTrusted});
}

TEST_F(DockMouseGuardTest, WithoutPermissionARunningGuardKeepsItsEarlierSettings) {
  startPinned(OrvaneModifier::control);
  machine.permission.setTrusted(false);
  guard->start(desk::uuidNamed('B'), OrvaneModifier::shift, true);
  EXPECT_TRUE(guard->isSetTo(desk::uuidNamed('A'), OrvaneModifier::control, false));
  EXPECT_FALSE(guard->isSetTo(desk::uuidNamed('B'), OrvaneModifier::control, false));
  EXPECT_FALSE(guard->isSetTo(desk::uuidNamed('A'), OrvaneModifier::shift, false));
  EXPECT_FALSE(guard->isSetTo(desk::uuidNamed('A'), OrvaneModifier::control, true));
  EXPECT_TRUE(guard->isRunning());
  EXPECT_EQ(guard->snapshot().zones, Zones{zoneOfTheMonitor});
  EXPECT_EQ(guard->snapshot().lockedDisplayIdentifier, desk::uuidNamed('A'));
  EXPECT_EQ(guard->snapshot().overrideModifier, OrvaneModifier::control);
  EXPECT_FALSE(guard->snapshot().blocksAllDisplays);
  EXPECT_EQ(takeMessages(), Messages{notTrusted});
}

TEST_F(DockMouseGuardTest, WhenThePermissionReturnsAStartReplacesTheDeadTap) {
  startPinned();
  machine.permission.setTrusted(false);
  EXPECT_EQ(outcomeOf(inTheZone), inTheZone) << "the tap receives no events";
  machine.permission.setTrusted(true);
  startPinned();
  expectGuarding();
  EXPECT_EQ(outcomeOf(inTheZone), (CGPoint{2500, 1063}));
}

TEST_F(DockMouseGuardTest, AnUnusableDockEdgeGivesNoZones) {
  for (const char* const edge : {"top", "middle"}) {
    desk::setDockOrientation(machine, edge);
    guard->start(desk::uuidNamed('A'), OrvaneModifier::option, true);
    EXPECT_EQ(takeMessages(), Messages{noZones}) << edge;
    expectWaiting();
  }
}

TEST_F(DockMouseGuardTest, ARestartLeavesOneTapAndOneObserver) {
  startPinned();
  guard->start(desk::uuidNamed('B'), OrvaneModifier::shift, false);
  expectGuarding();
  EXPECT_EQ(guard->snapshot().zones, Zones{zoneOfTheLaptop});
  EXPECT_EQ(guard->snapshot().overrideModifier, OrvaneModifier::shift);
  EXPECT_EQ(takeMessages(), Messages{startedWithOneZone});
}

TEST_F(DockMouseGuardTest, StoppingLeavesTheGuardIdle) {
  startPreventing();
  block();
  guard->stop();
  expectIdle();
  EXPECT_FALSE(guard->snapshot().blocksAllDisplays);
  EXPECT_EQ(guard->snapshot().recentBlockCount, 0U);
  EXPECT_EQ(outcomeOf(inTheZone), inTheZone);
}

TEST_F(DockMouseGuardTest, StoppingKeepsTargetModifierAndTotal) {
  startPinned(OrvaneModifier::command);
  block(3);
  guard->stop();
  EXPECT_EQ(guard->snapshot().lockedDisplayIdentifier, desk::uuidNamed('A'));
  EXPECT_EQ(guard->snapshot().overrideModifier, OrvaneModifier::command);
  EXPECT_EQ(guard->snapshot().blockedCount, 3);
  startPinned();
  block();
  EXPECT_EQ(takeMessages(), Messages{"Blocked Dock trigger 4 times"})
      << "the time of the last report is forgotten";
}

TEST_F(DockMouseGuardTest, ARestartWithoutStoppingRemembersTheLastReport) {
  startPinned();
  block();
  takeMessages();
  startPinned();
  block();
  EXPECT_EQ(takeMessages(), Messages{});
}

TEST_F(DockMouseGuardTest, StoppingWhileUnlockedReportsTheEndOnce) {
  startPinned();
  outcomeOf(inTheZone, kCGEventFlagMaskAlternate);
  machine.runDue();
  guard->stop();
  EXPECT_FALSE(guard->snapshot().isTemporarilyUnlocked);
  guard->stop();
  machine.runDue();
  EXPECT_EQ(unlocks, (Unlocks{true, false}));
}

TEST_F(DockMouseGuardTest, ARestartWhileUnlockedReportsNothing) {
  startPinned();
  outcomeOf(inTheZone, kCGEventFlagMaskAlternate);
  startPinned();
  EXPECT_TRUE(guard->snapshot().isTemporarilyUnlocked);
  EXPECT_EQ(unlocks, Unlocks{true});
}

TEST_F(DockMouseGuardTest, DestroyingAGuardStopsItFirst) {
  startPinned();
  guard.reset();
  EXPECT_EQ(machine.eventTaps.aliveCount(), 0U);
  EXPECT_EQ(machine.observers.count(), 0U);
  EXPECT_EQ(machine.runLoop.sources().size(), 0U);
  EXPECT_EQ(portCount(), 0U);
  desk::detach(machine, 1);
  machine.runDue();
  EXPECT_EQ(messages, Messages{});
}

TEST_F(DockMouseGuardTest, ItsDisplaysAreThoseOfAllScreens) {
  EXPECT_EQ(DockMouseGuard::displays(), DisplaySnapshot::ofAllScreens());
}

std::vector<std::string> openedLinks(const desk::Machine& machine) {
  std::vector<std::string> urls;
  for (const desk::Links::Opened& opened : machine.links.opened()) {
    urls.push_back(opened.url + (opened.wasAccepted ? "" : " refused"));
  }
  return urls;
}

TEST_F(DockMouseGuardTest, WhenEveryLinkIsRefusedTheSettingsThemselvesAreOpened) {
  machine.links.refuse("x-apple.systempreferences:");
  DockMouseGuard::openDesktopAndDockSettings();
  machine.runDue();
  EXPECT_EQ(openedLinks(machine),
            (Messages{"x-apple.systempreferences:com.apple.Desktop-Settings.extension refused",
                      "x-apple.systempreferences:com.apple.preference.dock refused",
                      "file:///System/Applications/System%20Settings.app"}));
}

// The announcement of whether the guard runs.

class RunningAnnouncementTest : public GuardLifeFixture {
 protected:
  RunningAnnouncementTest() {
    guard->onRunningChanged = [this](bool isRunning) { running.push_back(isRunning); };
  }
  std::vector<bool> announced() {
    machine.runDue();
    return std::exchange(running, {});
  }

  std::vector<bool> running;
};

TEST_F(RunningAnnouncementTest, StartAndStopAreAnnouncedOnTheMainQueue) {
  guard->start(desk::uuidNamed('A'), OrvaneModifier::option, false);
  EXPECT_TRUE(running.empty());
  EXPECT_EQ(announced(), std::vector{true});
  guard->stop();
  EXPECT_TRUE(running.empty());
  EXPECT_EQ(announced(), std::vector{false});
}

TEST_F(RunningAnnouncementTest, ARestartIsNotAChange) {
  startPinned();
  announced();
  guard->start("", OrvaneModifier::option, true);
  EXPECT_EQ(announced(), std::vector<bool>());
}

TEST_F(RunningAnnouncementTest, AStartWithoutATapIsNotAChangeUnlessTheGuardRan) {
  machine.eventTaps.setRefusesCreation(true);
  guard->start(desk::uuidNamed('A'), OrvaneModifier::option, false);
  EXPECT_EQ(announced(), std::vector<bool>());
  machine.eventTaps.setRefusesCreation(false);
  startPinned();
  announced();
  machine.eventTaps.setRefusesCreation(true);
  guard->start(desk::uuidNamed('A'), OrvaneModifier::option, false);
  EXPECT_EQ(announced(), std::vector{false});
}

TEST_F(RunningAnnouncementTest, APauseForTheDisplaysIsAnnounced) {
  startPinned();
  announced();
  desk::detach(machine, 1);
  EXPECT_EQ(announced(), std::vector{false});
  desk::attach(machine, desk::laptop());
  EXPECT_EQ(announced(), std::vector{true});
}

TEST_F(RunningAnnouncementTest, AShutOffIsAnnounced) {
  startPinned();
  announced();
  block(180);
  EXPECT_EQ(announced(), std::vector{false});
}

TEST_F(DockMouseGuardTest, ARestartWithoutZonesRemovesTheTapAndEndsATemporaryUnlock) {
  startPinned();
  outcomeOf(outsideEveryZone, kCGEventFlagMaskAlternate);
  guard->start("", OrvaneModifier::option, false);
  EXPECT_EQ(takeMessages(), Messages{noZones});
  expectWaiting();
  EXPECT_EQ(unlocks, (Unlocks{true, false}));
}

TEST_F(DockMouseGuardTest, AStartWhoseTapIsRefusedEndsATemporaryUnlock) {
  startPinned();
  outcomeOf(outsideEveryZone, kCGEventFlagMaskAlternate);
  machine.eventTaps.setRefusesCreation(true);
  guard->start(desk::uuidNamed('A'), OrvaneModifier::option, false);
  machine.runDue();
  EXPECT_EQ(unlocks, (Unlocks{true, false}));
}

TEST_F(DockMouseGuardTest, ARefusedReplacementOfATapEndsATemporaryUnlock) {
  startPinned();
  outcomeOf(outsideEveryZone, kCGEventFlagMaskAlternate);
  machine.eventTaps.disableAllSilently(true);
  guard->reviveTap();
  machine.eventTaps.setRefusesCreation(true);
  guard->reviveTap();
  machine.runDue();
  EXPECT_EQ(unlocks, (Unlocks{true, false}));
}

}  // namespace
}  // namespace orvane
