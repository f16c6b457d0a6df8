// Taps, ports, sources and the run loop: ownership and lifetimes.
#include <gtest/gtest.h>

#include "Orvane/base/CFRef.hpp"
#include "desk/quartz/CFObjects.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane::desk {
namespace {

CGEventRef countEvent(CGEventTapProxy, CGEventType, CGEventRef event, void* userInfo) {
  ++*static_cast<int*>(userInfo);
  return event;
}

class CFMachPortTest : public MachineFixture {
 protected:
  CFMachPortTest() { machine.permission.setTrusted(true); }

  CFRef<CFMachPortRef> makeTap() {
    return CFRef<CFMachPortRef>::owning(
        CGEventTapCreate(kCGSessionEventTap, kCGTailAppendEventTap, kCGEventTapOptionDefault,
                         CGEventMask{1} << kCGEventMouseMoved, countEvent, &events));
  }
  static CFRef<CFRunLoopSourceRef> makeSource(const CFRef<CFMachPortRef>& port) {
    return CFRef<CFRunLoopSourceRef>::owning(
        CFMachPortCreateRunLoopSource(kCFAllocatorDefault, port.get(), 0));
  }
  static void addSource(const CFRef<CFRunLoopSourceRef>& source) {
    CFRunLoopAddSource(CFRunLoopGetCurrent(), source.get(), kCFRunLoopCommonModes);
  }
  static void removeSource(const CFRef<CFRunLoopSourceRef>& source) {
    CFRunLoopRemoveSource(CFRunLoopGetCurrent(), source.get(), kCFRunLoopCommonModes);
  }
  int deliver() {
    events = 0;
    machine.mouse.post({1, 1}, 0);
    return events;
  }

  int events = 0;
};

TEST_F(CFMachPortTest, ASourceKeepsItsPortAndTheRunLoopKeepsTheSource) {
  auto port = makeTap();
  const CFMachPortRef portAddress = port.get();
  auto source = makeSource(port);
  const CFRunLoopSourceRef sourceAddress = source.get();
  EXPECT_EQ(machine.objects.referenceCount(portAddress), 2);
  addSource(source);
  addSource(source);
  EXPECT_EQ(machine.objects.referenceCount(sourceAddress), 2);
  port.reset();
  source.reset();
  EXPECT_EQ(machine.objects.referenceCount(portAddress), 1);
  EXPECT_EQ(deliver(), 1);
  CFRunLoopRemoveSource(CFRunLoopGetCurrent(), sourceAddress, kCFRunLoopCommonModes);
  EXPECT_EQ(machine.objects.liveCount(), 0U);
  EXPECT_EQ(machine.eventTaps.aliveCount(), 0U);
}

TEST_F(CFMachPortTest, ATapReceivesEventsOnlyWhileASourceIsInTheRunLoop) {
  const auto port = makeTap();
  EXPECT_EQ(deliver(), 0);
  const auto source = makeSource(port);
  EXPECT_EQ(deliver(), 0);
  addSource(source);
  EXPECT_EQ(deliver(), 1);
  const auto second = makeSource(port);
  addSource(second);
  EXPECT_EQ(deliver(), 1);
  removeSource(source);
  EXPECT_EQ(deliver(), 1);
  removeSource(second);
  EXPECT_EQ(deliver(), 0);
}

TEST_F(CFMachPortTest, ASourceThatIsRefusedIsNotMade) {
  const auto port = makeTap();
  machine.runLoop.setRefusesSources(true);
  EXPECT_FALSE(makeSource(port));
  machine.runLoop.setRefusesSources(false);
  EXPECT_TRUE(makeSource(port));
}

TEST_F(CFMachPortTest, InvalidatingThePortEndsTheTapAndItsSources) {
  const auto port = makeTap();
  const auto source = makeSource(port);
  addSource(source);
  CFMachPortInvalidate(port.get());
  CFMachPortInvalidate(port.get());
  EXPECT_EQ(machine.eventTaps.aliveCount(), 0U);
  EXPECT_TRUE(machine.runLoop.sources().empty());
  EXPECT_EQ(deliver(), 0);
  CGEventTapEnable(port.get(), true);
  EXPECT_FALSE(CGEventTapIsEnabled(port.get()));
  addSource(source);
  EXPECT_TRUE(machine.runLoop.sources().empty());
  EXPECT_FALSE(makeSource(port));
  removeSource(source);
}

TEST_F(CFMachPortTest, TheLossOfThePermissionKillsTheTapForGood) {
  const auto port = makeTap();
  const auto source = makeSource(port);
  addSource(source);
  machine.permission.setTrusted(false);
  EXPECT_EQ(machine.eventTaps.aliveCount(), 0U);
  EXPECT_EQ(deliver(), 0);
  machine.permission.setTrusted(true);
  CGEventTapEnable(port.get(), true);
  EXPECT_FALSE(CGEventTapIsEnabled(port.get()));
  EXPECT_EQ(deliver(), 0);
  const auto next = makeTap();
  const auto nextSource = makeSource(next);
  addSource(nextSource);
  EXPECT_EQ(deliver(), 1);
  removeSource(source);
  removeSource(nextSource);
}

}  // namespace
}  // namespace orvane::desk
