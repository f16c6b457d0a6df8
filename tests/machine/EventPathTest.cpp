// The path of an event allocates nothing, whatever its outcome.
#include <gtest/gtest.h>

#include "desk/machine/MachineScope.hpp"
#include "tests/support/AllocationCounter.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane::desk {
namespace {

CGEventRef pushUp(CGEventTapProxy, CGEventType, CGEventRef event, void*) {
  CGPoint location = CGEventGetLocation(event);
  if (location.y > 788 && (CGEventGetFlags(event) & kCGEventFlagMaskShift) == 0) {
    location.y -= 12;
    CGEventSetLocation(event, location);
  }
  return event;
}

TEST(EventPathTest, AllocatesNothing) {
  MachineScope scope;
  Machine& machine = scope.machine();
  for (const std::uint32_t number : {1U, 2U, 3U}) {
    attach(machine, displayOf(number, "", CGRectMake(1000 * (number - 1), 0, 1000, 800)));
  }
  const auto tap = machine.eventTaps.create(kCGTailAppendEventTap, kCGEventTapOptionDefault,
                                            CGEventMask{1} << kCGEventMouseMoved, pushUp, nullptr);
  machine.eventTaps.find(*tap)->sourceModes = RunLoop::commonModes;
  setDockAutoHide(machine, true);
  // The first reveal on a display creates its counter; later ones allocate nothing.
  machine.modifierKeys.hold(kCGEventFlagMaskShift);
  for (const double x : {500.0, 1500.0, 2500.0}) {
    machine.mouse.moveTo({x, 400});
    machine.mouse.moveBy(0, 900);
  }

  const AllocationCounter counter;
  for (int step = 0; step < 10'000; ++step) {
    machine.modifierKeys.hold(step % 3 == 0 ? kCGEventFlagMaskShift : CGEventFlags{});
    machine.mouse.moveBy((step * 37) % 301 - 150, step % 4 == 0 ? -500 : 300);
    machine.mouse.post({500, 795}, 0);
  }
  EXPECT_EQ(counter.count(), 0U);
  EXPECT_GT(machine.counters.relocatedEvents, 100);
  EXPECT_GT(machine.dock.revealCount(), 100);
}

}  // namespace
}  // namespace orvane::desk
