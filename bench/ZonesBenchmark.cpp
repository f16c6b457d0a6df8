// The cost of a display change: the zones of all displays but one.
#include <cstddef>
#include <vector>

#include <benchmark/benchmark.h>

#include "Orvane/geometry/OrvaneGeometry.hpp"

namespace orvane::bench {
namespace {

/// Two rows, the lower one half a display to the right, so that edges are partly exposed.
std::vector<CGRect> arrangement(std::size_t count) {
  std::vector<CGRect> frames;
  for (std::size_t index = 0; index < count; ++index) {
    const std::size_t column = index / 2;
    const bool isLower = index % 2 == 1;
    const double x = static_cast<double>(column) * 1920 + (isLower ? 960 : 0);
    frames.push_back(CGRectMake(x, isLower ? 1080 : 0, 1920, 1080));
  }
  return frames;
}

void zoneComputation(benchmark::State& state) {
  const std::vector<CGRect> frames = arrangement(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        OrvaneGeometry::calculateTriggerZones(frames, std::size_t{0}, DockPosition::bottom));
  }
}

BENCHMARK(zoneComputation)->Arg(2)->Arg(8)->Arg(32);

}  // namespace
}  // namespace orvane::bench
