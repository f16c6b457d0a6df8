// Speed limits of the event path: the cost of a missed event compared with the bare loop, and the
// movements per second of the simulated Mac.
#include <algorithm>
#include <chrono>
#include <cstddef>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "bench/BareFilter.hpp"
#include "bench/GuardedDesk.hpp"
#include "desk/machine/Event.hpp"

namespace orvane::bench {
namespace {

constexpr int callsPerRound = 100'000;

/// Nanoseconds per call in the fastest round, since other load can only slow it down.
template <typename Call>
double quickestNanoseconds(const Call& call) {
  using Clock = std::chrono::steady_clock;
  constexpr int rounds = 40;
  double quickest = std::numeric_limits<double>::infinity();
  for (int round = 0; round < rounds; ++round) {
    const Clock::time_point begin = Clock::now();
    for (int index = 0; index < callsPerRound; ++index) {
      call();
    }
    const std::chrono::duration<double, std::nano> elapsed = Clock::now() - begin;
    quickest = std::min(quickest, elapsed.count() / callsPerRound);
  }
  return quickest;
}

/// Makes the compiler assume that all memory may have changed.
void clobberMemory() {
  asm volatile("" : : : "memory");
}

TEST(EventPathSpeedTest, AMissOverFourZonesCostsAtMostTwiceTheBareLoopAndUnder25Nanoseconds) {
  GuardedDesk desk(4);
  const CGPoint place = desk.placeOutsideZones();
  __CGEvent event{kCGEventMouseMoved, CGEventFlags{}, place};
  const auto filterNanoseconds = [&] {
    return quickestNanoseconds([&] {
      desk.guard().eventTapCallback(kCGEventMouseMoved, &event);
      clobberMemory();
    });
  };
  const double before = filterNanoseconds();

  std::vector<BareZone> zones;
  const GuardSnapshot guard = desk.guard().snapshot();
  for (const TriggerZone& zone : guard.zones) {
    zones.push_back({CGRectGetMinX(zone.rect), CGRectGetMinY(zone.rect), CGRectGetMaxX(zone.rect),
                     CGRectGetMaxY(zone.rect), zone.nudgeVector.dx, zone.nudgeVector.dy});
  }
  BareEvent bareEvent{place.x, place.y, 0};
  const double bare = quickestNanoseconds([&] {
    bareFilter(zones, kCGEventFlagMaskAlternate, bareEvent);
    clobberMemory();
  });

  // Measured before and after the bare loop, so that a change of the machine's speed favours
  // neither.
  const double filter = std::min(before, filterNanoseconds());
  RecordProperty("filterNanoseconds", std::to_string(filter));
  RecordProperty("bareNanoseconds", std::to_string(bare));
  EXPECT_LE(filter, 2 * bare) << "bare loop: " << bare << " ns";
  EXPECT_LT(filter, 25);
}

TEST(EventPathSpeedTest, TheSimulatedMacProcessesAMillionMovementsASecondAtAGuardedEdge) {
  GuardedDesk desk(2);
  desk.machine().mouse.moveTo(desk.placeOutsideZones());
  double distance = 3;
  const double inTheOpen = quickestNanoseconds([&] {
    desk.machine().mouse.moveBy(distance, 0);
    distance = -distance;
  });
  const double againstTheEdge = quickestNanoseconds([&] {
    desk.machine().mouse.moveBy(0, 40);
    desk.letTimePass();
  });
  RecordProperty("inTheOpenNanoseconds", std::to_string(inTheOpen));
  RecordProperty("againstTheEdgeNanoseconds", std::to_string(againstTheEdge));
  EXPECT_GT(desk.guard().snapshot().blockedCount, 1'000'000) << "the edge was guarded throughout";
  EXPECT_EQ(desk.machine().dock.revealCount(3), 0);
  EXPECT_LT(inTheOpen, 1000);
  EXPECT_LT(againstTheEdge, 1000);
}

}  // namespace
}  // namespace orvane::bench
