// The filter sits in the path of every pointer movement: it must not take memory. In an executable
// of its own, whose operator new counts.
#include <cstddef>
#include <new>

#include <gtest/gtest.h>

#include "desk/machine/Event.hpp"
#include "tests/support/AllocationCounter.hpp"
#include "tests/support/GuardFixture.hpp"

namespace orvane {
namespace {

class DockMouseGuardAllocationTest : public GuardFixture {
 protected:
  DockMouseGuardAllocationTest() {
    startPreventing();
    // The first report of a run of blocks takes its task; it is not what is measured.
    block();
    machine.runDue();
  }

  /// How much the filter takes for so many events.
  std::size_t takenFor(int events, CGEventType type, CGPoint place, std::uint64_t flags = 0) {
    std::size_t taken = 0;
    for (int done = 0; done < events; ++done) {
      __CGEvent event{type, static_cast<CGEventFlags>(flags), place};
      const AllocationCounter counter;
      guard->eventTapCallback(type, &event);
      taken += counter.count();
    }
    return taken;
  }
};

TEST_F(DockMouseGuardAllocationTest, TheCounterCounts) {
  const AllocationCounter counter;
  // Called by name, because a compiler may leave out what a new-expression would have taken.
  ::operator delete(::operator new(100));
  ::operator delete(::operator new(8));
  EXPECT_EQ(counter.count(), 2U);
}

TEST_F(DockMouseGuardAllocationTest, AMissTakesNothing) {
  EXPECT_EQ(takenFor(10'000, kCGEventMouseMoved, outsideEveryZone), 0U);
}

TEST_F(DockMouseGuardAllocationTest, AHitTakesNothing) {
  EXPECT_EQ(takenFor(178, kCGEventMouseMoved, inTheZone), 0U);
  EXPECT_EQ(guard->snapshot().recentBlockCount, 179U);
  EXPECT_EQ(guard->snapshot().blockedCount, 179);
}

TEST_F(DockMouseGuardAllocationTest, AHitThatForgetsOldBlocksTakesNothing) {
  std::size_t taken = 0;
  for (int second = 0; second < 50; ++second) {
    // The first of each second is reported.
    machine.advance(1.0);
    block();
    machine.runDue();
    taken += takenFor(50, kCGEventMouseMoved, inTheZone);
  }
  EXPECT_EQ(taken, 0U);
  EXPECT_TRUE(guard->isRunning());
}

TEST_F(DockMouseGuardAllocationTest, AHeldModifierTakesNothing) {
  outcomeOf(inTheZone, kCGEventFlagMaskAlternate);
  machine.runDue();
  EXPECT_EQ(takenFor(10'000, kCGEventMouseMoved, inTheZone, kCGEventFlagMaskAlternate), 0U);
  EXPECT_EQ(takenFor(10'000, kCGEventMouseMoved, outsideEveryZone, kCGEventFlagMaskAlternate), 0U);
}

TEST_F(DockMouseGuardAllocationTest, ATapThatTheSystemDisabledTakesNothing) {
  // The fifth within ten seconds leaves a task on the main queue.
  EXPECT_EQ(takenFor(4, kCGEventTapDisabledByTimeout, inTheZone), 0U);
}

TEST_F(DockMouseGuardAllocationTest, OnlyWhatIsReportedTakesMemoryAtMostOnceASecond) {
  int reports = 0;
  for (int count = 0; count < 1'000; ++count) {
    machine.clock.moveTo(machine.clock.now() + 20'000'000);
    const AllocationCounter counter;
    __CGEvent event{kCGEventMouseMoved, CGEventFlags{}, inTheZone};
    guard->eventTapCallback(event.type, &event);
    reports += counter.count() > 0 ? 1 : 0;
  }
  EXPECT_EQ(reports, 20) << "a thousand blocks in twenty seconds";
}

TEST_F(DockMouseGuardAllocationTest, TheWayThroughPointerTapAndDockTakesNothing) {
  machine.mouse.moveTo({2500, 500});
  machine.runDue();
  const AllocationCounter counter;
  for (int count = 0; count < 10'000; ++count) {
    machine.mouse.moveBy(count % 2 == 0 ? 3 : -3, 0);
  }
  EXPECT_EQ(counter.count(), 0U);
}

}  // namespace
}  // namespace orvane
