// The cost of one event in the guard's filter, by outcome and number of zones, compared with the
// bare loop. Part of a hit's cost is the desk's: its clock (mediaClock), which on a Mac is a read
// of the processor's counter and a multiplication, and letting time pass (timePasses), without
// which the guard would detect runaway blocking.
#include <cstddef>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/BareFilter.hpp"
#include "bench/GuardedDesk.hpp"
#include "desk/machine/Event.hpp"

namespace orvane::bench {
namespace {

std::size_t zoneCount(const benchmark::State& state) {
  return static_cast<std::size_t>(state.range(0));
}

void filterMiss(benchmark::State& state) {
  GuardedDesk desk(zoneCount(state));
  __CGEvent event{kCGEventMouseMoved, CGEventFlags{}, desk.placeOutsideZones()};
  for (auto _ : state) {
    benchmark::DoNotOptimize(desk.guard().eventTapCallback(kCGEventMouseMoved, &event));
    benchmark::ClobberMemory();
  }
}

void filterHit(benchmark::State& state) {
  GuardedDesk desk(zoneCount(state));
  const CGPoint place = desk.placeInLastZone();
  __CGEvent event{kCGEventMouseMoved, CGEventFlags{}, place};
  for (auto _ : state) {
    event.location = place;
    benchmark::DoNotOptimize(desk.guard().eventTapCallback(kCGEventMouseMoved, &event));
    desk.letTimePass();
  }
}

void filterUnlocked(benchmark::State& state) {
  GuardedDesk desk(zoneCount(state));
  __CGEvent event{kCGEventMouseMoved, kCGEventFlagMaskAlternate, desk.placeInLastZone()};
  for (auto _ : state) {
    benchmark::DoNotOptimize(desk.guard().eventTapCallback(kCGEventMouseMoved, &event));
    benchmark::ClobberMemory();
  }
}

void bareMiss(benchmark::State& state) {
  GuardedDesk desk(zoneCount(state));
  std::vector<BareZone> zones;
  const GuardSnapshot guard = desk.guard().snapshot();
  for (const TriggerZone& zone : guard.zones) {
    zones.push_back({CGRectGetMinX(zone.rect), CGRectGetMinY(zone.rect), CGRectGetMaxX(zone.rect),
                     CGRectGetMaxY(zone.rect), zone.nudgeVector.dx, zone.nudgeVector.dy});
  }
  const CGPoint place = desk.placeOutsideZones();
  BareEvent event{place.x, place.y, 0};
  for (auto _ : state) {
    benchmark::DoNotOptimize(bareFilter(zones, kCGEventFlagMaskAlternate, event));
    benchmark::ClobberMemory();
  }
}

void mediaClock(benchmark::State& state) {
  GuardedDesk desk(1);
  for (auto _ : state) {
    benchmark::DoNotOptimize(CACurrentMediaTime());
    benchmark::ClobberMemory();
  }
}

void timePasses(benchmark::State& state) {
  GuardedDesk desk(1);
  for (auto _ : state) {
    desk.letTimePass();
    benchmark::ClobberMemory();
  }
}

BENCHMARK(mediaClock);
BENCHMARK(timePasses);
BENCHMARK(bareMiss)->Arg(1)->Arg(4)->Arg(16);
BENCHMARK(filterMiss)->Arg(1)->Arg(4)->Arg(16);
BENCHMARK(filterHit)->Arg(1)->Arg(4)->Arg(16);
BENCHMARK(filterUnlocked)->Arg(1)->Arg(4)->Arg(16);

}  // namespace
}  // namespace orvane::bench
