// The order of the calls that install and remove a tap, which matters in a real session but not in
// the simulated one. The linker wraps these calls of the guard with the functions below.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/platform/Quartz.hpp"
#include "tests/guard/GuardLifeFixture.hpp"

#define REAL(name) asm("__real_" name)
#define WRAPPED(name) asm("__wrap_" name)

namespace orvane {

namespace {

std::vector<std::string> calls;
bool refusesSources = false;

}  // namespace

void enableReally(CFMachPortRef tap, bool enable) REAL("CGEventTapEnable");
void enable(CFMachPortRef tap, bool enable) WRAPPED("CGEventTapEnable");
void enable(CFMachPortRef tap, bool enable) {
  calls.emplace_back(enable ? "enable" : "disable");
  enableReally(tap, enable);
}

CFRunLoopSourceRef makeSourceReally(CFAllocatorRef allocator, CFMachPortRef port, CFIndex order)
    REAL("CFMachPortCreateRunLoopSource");
CFRunLoopSourceRef makeSource(CFAllocatorRef allocator, CFMachPortRef port, CFIndex order)
    WRAPPED("CFMachPortCreateRunLoopSource");
CFRunLoopSourceRef makeSource(CFAllocatorRef allocator, CFMachPortRef port, CFIndex order) {
  calls.emplace_back("make source");
  return refusesSources ? nullptr : makeSourceReally(allocator, port, order);
}

void addSourceReally(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFRunLoopMode mode)
    REAL("CFRunLoopAddSource");
void addSource(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFRunLoopMode mode)
    WRAPPED("CFRunLoopAddSource");
void addSource(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFRunLoopMode mode) {
  calls.emplace_back("add source");
  addSourceReally(runLoop, source, mode);
}

void removeSourceReally(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFRunLoopMode mode)
    REAL("CFRunLoopRemoveSource");
void removeSource(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFRunLoopMode mode)
    WRAPPED("CFRunLoopRemoveSource");
void removeSource(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFRunLoopMode mode) {
  calls.emplace_back("remove source");
  removeSourceReally(runLoop, source, mode);
}

void invalidateReally(CFMachPortRef port) REAL("CFMachPortInvalidate");
void invalidate(CFMachPortRef port) WRAPPED("CFMachPortInvalidate");
void invalidate(CFMachPortRef port) {
  calls.emplace_back("invalidate");
  invalidateReally(port);
}

namespace {

using Calls = std::vector<std::string>;

class DockMouseGuardTapTest : public GuardLifeFixture {
 protected:
  DockMouseGuardTapTest() {
    calls.clear();
    refusesSources = false;
  }
};

const Calls putUp{"make source", "add source", "enable"};
const Calls takenDown{"disable", "remove source", "invalidate"};

TEST_F(DockMouseGuardTapTest, ATapIsServedBeforeItIsEnabled) {
  startPinned();
  EXPECT_EQ(calls, putUp);
}

TEST_F(DockMouseGuardTapTest, ATapIsDisabledThenLeavesTheRunLoopThenIsInvalidated) {
  startPinned();
  calls.clear();
  guard->stop();
  EXPECT_EQ(calls, takenDown);
  calls.clear();
  guard->stop();
  EXPECT_EQ(calls, Calls{}) << "once";
}

TEST_F(DockMouseGuardTapTest, ARestartTakesTheOldTapDownFirst) {
  startPinned();
  calls.clear();
  startPinned();
  Calls both = takenDown;
  both.insert(both.end(), putUp.begin(), putUp.end());
  EXPECT_EQ(calls, both);
}

TEST_F(DockMouseGuardTapTest, AGuardThatGoesTakesItsTapDown) {
  startPinned();
  calls.clear();
  guard.reset();
  EXPECT_EQ(calls, takenDown);
}

TEST_F(DockMouseGuardTapTest, ATapThatCannotBeServedIsRemoved) {
  refusesSources = true;
  guard->start(desk::uuidNamed('A'), OrvaneModifier::option, false);
  EXPECT_EQ(calls, (Calls{"make source", "disable", "invalidate"}));
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
