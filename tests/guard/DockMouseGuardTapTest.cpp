// The calls that install and remove a tap. Their order matters in a real session but not in the
// simulated one.
#include <string>

#include "tests/guard/GuardFixture.hpp"

namespace orvane {
namespace {

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

}  // namespace
}  // namespace orvane
