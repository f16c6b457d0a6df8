// The cost of one mouse movement through pointer, event tap, guard and Dock.
#include <cstddef>
#include <cstdint>

#include <benchmark/benchmark.h>

#include "bench/GuardedDesk.hpp"

namespace orvane::bench {
namespace {

void pointerMovement(benchmark::State& state) {
  GuardedDesk desk(static_cast<std::size_t>(state.range(0)));
  desk.machine().mouse.moveTo(desk.placeOutsideZones());
  double distance = 3;
  for (auto _ : state) {
    desk.machine().mouse.moveBy(distance, 0);
    distance = -distance;
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()));
}

void pointerPressedAgainstTheEdge(benchmark::State& state) {
  GuardedDesk desk(static_cast<std::size_t>(state.range(0)));
  desk.machine().mouse.moveTo(desk.placeOutsideZones());
  for (auto _ : state) {
    desk.machine().mouse.moveBy(0, 40);
    desk.letTimePass();
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()));
}

BENCHMARK(pointerMovement)->Arg(1)->Arg(4);
BENCHMARK(pointerPressedAgainstTheEdge)->Arg(1)->Arg(4);

}  // namespace
}  // namespace orvane::bench
