// The filter runs for every pointer movement, so it must not allocate. A separate executable with a
// counting operator new.
#include <cstddef>
#include <new>

#include <gtest/gtest.h>

#include "desk/machine/Event.hpp"
#include "tests/guard/GuardFixture.hpp"
#include "tests/support/AllocationCounter.hpp"

namespace orvane {
namespace {

class DockMouseGuardAllocationTest : public GuardFixture {
 protected:
  DockMouseGuardAllocationTest() {
    startPreventing();
    // The first report of a series of blocks allocates a task, which is not measured here.
    block();
    machine.runDue();
  }

  /// The filter's allocations for that many events.
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
  // Called by name, because a compiler may elide the allocation of a new-expression.
  ::operator delete(::operator new(100));
  ::operator delete(::operator new(8));
  EXPECT_EQ(counter.count(), 2U);
}

TEST_F(DockMouseGuardAllocationTest, AMissAllocatesNothing) {
  EXPECT_EQ(takenFor(10'000, kCGEventMouseMoved, outsideEveryZone), 0U);
}

TEST_F(DockMouseGuardAllocationTest, AHitAllocatesNothing) {
  EXPECT_EQ(takenFor(178, kCGEventMouseMoved, inTheZone), 0U);
  EXPECT_EQ(guard->snapshot().recentBlockCount, 179U);
  EXPECT_EQ(guard->snapshot().blockedCount, 179);
}

TEST_F(DockMouseGuardAllocationTest, AHitThatDiscardsOldBlocksAllocatesNothing) {
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

TEST_F(DockMouseGuardAllocationTest, AHeldModifierAllocatesNothing) {
  outcomeOf(inTheZone, optionKey);
  machine.runDue();
  EXPECT_EQ(takenFor(10'000, kCGEventMouseMoved, inTheZone, optionKey), 0U);
  EXPECT_EQ(takenFor(10'000, kCGEventMouseMoved, outsideEveryZone, optionKey), 0U);
}

TEST_F(DockMouseGuardAllocationTest, ATapThatTheSystemDisabledAllocatesNothing) {
  // The fifth within ten seconds posts a task to the main queue.
  EXPECT_EQ(takenFor(4, kCGEventTapDisabledByTimeout, inTheZone), 0U);
}

}  // namespace
}  // namespace orvane
