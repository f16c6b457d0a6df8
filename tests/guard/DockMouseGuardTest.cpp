// The guard's life cycle: starting, stopping, its calls of the platform, display changes, and its
// messages to its owner.
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/guard/DockMouseGuardMessages.hpp"
#include "desk/machine/RunLoop.hpp"
#include "tests/guard/GuardFixture.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane {
namespace {

using DockMouseGuardTest = GuardFixture;

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
  EXPECT_EQ(takeMessages(), Messages{notTrusted});
}

TEST_F(DockMouseGuardTest, WhenThePermissionReturnsAStartReplacesTheDeadTap) {
  startPinned();
  machine.permission.setTrusted(false);
  EXPECT_EQ(outcomeOf(inTheZone), inTheZone) << "the tap receives no events";
  machine.permission.setTrusted(true);
  startPinned();
  expectGuarding();
  EXPECT_EQ(outcomeOf(inTheZone), movedBack);
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

TEST_F(DockMouseGuardTest, ARestartWhileUnlockedReportsNothing) {
  startPinned();
  outcomeOf(inTheZone, optionKey);
  startPinned();
  EXPECT_TRUE(guard->snapshot().isTemporarilyUnlocked);
  EXPECT_EQ(unlocks, Unlocks{true});
}

TEST_F(DockMouseGuardTest, ATemporaryUnlockEndsWithTheTap) {
  const auto startAgain = [this] {
    guard->start(desk::uuidNamed('A'), OrvaneModifier::option, false);
  };
  const std::vector<std::pair<const char*, std::function<void()>>> endings{
      {"stopped", [this] { guard->stop(); }},
      {"restarted without zones", [this] { guard->start("", OrvaneModifier::option, false); }},
      {"restarted while taps are refused",
       [&] {
         machine.eventTaps.setRefusesCreation(true);
         startAgain();
       }},
      {"replaced while taps are refused",
       [this] {
         machine.eventTaps.disableAllSilently(true);
         guard->reviveTap();
         machine.eventTaps.setRefusesCreation(true);
         guard->reviveTap();
       }},
      {"disabled too often",
       [this] {
         for (int count = 0; count < 5; ++count) {
           disableTap();
         }
       }},
      {"left without its target", [this] { desk::detach(machine, 1); }},
  };
  for (const auto& [name, end] : endings) {
    machine.eventTaps.setRefusesCreation(false);
    startPinned();
    unlocks.clear();
    outcomeOf(outsideEveryZone, optionKey);
    end();
    machine.runDue();
    EXPECT_EQ(unlocks, (Unlocks{true, false})) << name;
    EXPECT_FALSE(guard->isRunning()) << name;
  }
}

TEST_F(DockMouseGuardTest, DestroyingAGuardStopsItFirst) {
  startPinned();
  guard.reset();
  EXPECT_EQ(machine.eventTaps.aliveCount(), 0U);
  EXPECT_EQ(machine.observers.count(), 0U);
  EXPECT_EQ(machine.runLoop.sources().size(), 0U);
  desk::detach(machine, 1);
  EXPECT_EQ(takeMessages(), Messages{});
}

TEST_F(DockMouseGuardTest, TheOwnerHearsOnTheMainQueueWhetherTheGuardRuns) {
  using Announced = std::vector<bool>;
  Announced running;
  guard->onRunningChanged = [&](bool isRunning) { running.push_back(isRunning); };
  const auto announced = [&] {
    machine.runDue();
    return std::exchange(running, {});
  };
  guard->start(desk::uuidNamed('A'), OrvaneModifier::option, false);
  EXPECT_EQ(running, Announced{});
  EXPECT_EQ(announced(), Announced{true});
  startPinned();
  EXPECT_EQ(announced(), Announced{}) << "a restart is no change";
  desk::detach(machine, 1);
  EXPECT_EQ(announced(), Announced{false});
  desk::attach(machine, desk::laptop());
  EXPECT_EQ(announced(), Announced{true});
  block(180);
  EXPECT_EQ(announced(), Announced{false});
  machine.eventTaps.setRefusesCreation(true);
  startPinned();
  EXPECT_EQ(announced(), Announced{}) << "it does not run";
  machine.eventTaps.setRefusesCreation(false);
  startPinned();
  EXPECT_EQ(announced(), Announced{true});
  machine.eventTaps.setRefusesCreation(true);
  startPinned();
  EXPECT_EQ(announced(), Announced{false});
  machine.eventTaps.setRefusesCreation(false);
  startPinned();
  EXPECT_EQ(announced(), Announced{true});
  machine.eventTaps.setRefusesCreation(true);
  machine.eventTaps.disableAllSilently(true);
  guard->reviveTap();
  guard->reviveTap();
  EXPECT_EQ(announced(), Announced{false}) << "the tap was not replaced";
  machine.eventTaps.setRefusesCreation(false);
  startPinned();
  announced();
  guard->stop();
  EXPECT_EQ(announced(), Announced{false});
}

TEST_F(DockMouseGuardTest, WhenEveryLinkIsRefusedTheSettingsThemselvesAreOpened) {
  machine.links.refuse("x-apple.systempreferences:");
  DockMouseGuard::openDesktopAndDockSettings();
  machine.runDue();
  EXPECT_EQ(openedLinks(),
            (Messages{"x-apple.systempreferences:com.apple.Desktop-Settings.extension refused",
                      "x-apple.systempreferences:com.apple.preference.dock refused",
                      "file:///System/Applications/System%20Settings.app"}));
}

const std::string permissionCall = "AXIsProcessTrusted\n";
const std::string installCalls =
    "Screen.screens\nCGEventTapCreate\nCFMachPortCreateRunLoopSource\nCFRunLoopAddSource\n"
    "CGEventTapEnable true\nNotificationCenter.addObserver\n";
const std::string removeCalls =
    "CGEventTapEnable false\nCFRunLoopRemoveSource\nCFMachPortInvalidate\n";

using DockMouseGuardTapTest = GuardFixture;

TEST_F(DockMouseGuardTapTest, ATapIsEnabledWhenItsSourceIsOnTheRunLoop) {
  EXPECT_EQ(callsOf([&] { startPinned(); }), permissionCall + installCalls);
}

TEST_F(DockMouseGuardTapTest, ARestartRemovesTheOldTapFirst) {
  startPinned();
  EXPECT_EQ(callsOf([&] { startPinned(); }), permissionCall + removeCalls + installCalls);
}

TEST_F(DockMouseGuardTapTest, ATapIsDisabledBeforeItsSourceIsRemovedAndThenInvalidatedOnce) {
  startPinned();
  EXPECT_EQ(callsOf([&] { guard->stop(); }), removeCalls);
  EXPECT_EQ(callsOf([&] { guard->stop(); }), "");
}

TEST_F(DockMouseGuardTapTest, ADestroyedGuardRemovesItsTap) {
  startPinned();
  EXPECT_EQ(callsOf([&] { guard.reset(); }), removeCalls);
}

TEST_F(DockMouseGuardTapTest, ATapWithoutASourceIsRemoved) {
  machine.runLoop.setRefusesSources(true);
  EXPECT_EQ(callsOf([&] { guard->start(desk::uuidNamed('A'), OrvaneModifier::option, false); }),
            permissionCall +
                "Screen.screens\nCGEventTapCreate\nCFMachPortCreateRunLoopSource\n"
                "CGEventTapEnable false\nCFMachPortInvalidate\nNotificationCenter.addObserver\n");
  EXPECT_EQ(takeMessages(), Messages{tapWasRefused});
  EXPECT_FALSE(guard->isRunning());
  EXPECT_EQ(machine.eventTaps.aliveCount(), 0U);
}

TEST_F(DockMouseGuardTapTest, AStartBeforeTheCleanUpOfAShutOffKeepsItsTap) {
  startPreventing();
  machine.runLoop.holdMainQueue();
  block(180);
  ASSERT_FALSE(machine.eventTaps.isAnyEnabled());
  guard->start(desk::uuidNamed('A'), OrvaneModifier::option, false);
  machine.runLoop.releaseMainQueue();
  machine.runDue();
  expectGuarding();
  EXPECT_EQ(guard->snapshot().recentBlockCount, 0U) << "the next block is the first again";
}

TEST_F(DockMouseGuardTapTest, ANoticeFromTheSystemDoesNotEnableATapThatIsShutOff) {
  startPreventing();
  machine.runLoop.holdMainQueue();
  block(180);
  guard->eventTapCallback(kCGEventTapDisabledByUserInput, nullptr);
  EXPECT_FALSE(machine.eventTaps.isAnyEnabled());
  machine.runLoop.releaseMainQueue();
  machine.runDue();
  expectWaiting();
}

TEST_F(DockMouseGuardTapTest, AChangeOfTheDisplaysBeforeTheCleanUpOfAShutOffEndsIt) {
  startPreventing();
  machine.runLoop.holdMainQueue();
  block(180);
  desk::attach(machine, desk::displayOf(3, "Third", {{3840, 0}, {1000, 1000}}));
  EXPECT_TRUE(machine.eventTaps.isAnyEnabled());
  block();
  machine.runLoop.releaseMainQueue();
  machine.runDue();
  expectGuarding();
}

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

using namespace DockMouseGuardMessages;

using DockMouseGuardMessagesTest = desk::MachineFixture;

TEST_F(DockMouseGuardMessagesTest, AreChineseInChinese) {
  store("appLanguage", "chinese");
  EXPECT_EQ(permissionMissing(), "尚未开启辅助功能权限，Dock 锁定未启动");
  EXPECT_EQ(noTriggerZones(), "没有可用触发区。请检查目标显示器、Dock 位置和显示器排列");
  EXPECT_EQ(tapRefused(), "无法创建 CGEventTap。请确认已开启辅助功能权限");
  EXPECT_EQ(started(3), "鼠标守卫已启动，触发区数量：3");
  EXPECT_EQ(targetUnavailable(), "目标显示器不存在，鼠标守卫已暂停");
  EXPECT_EQ(blocked(42), "已阻止第 42 次 Dock 触发");
}

}  // namespace
}  // namespace orvane
