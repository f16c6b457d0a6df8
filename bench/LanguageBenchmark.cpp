// The cost of choosing a text, with a fixed language and with the system's.
#include <benchmark/benchmark.h>

#include "Orvane/model/OrvaneLanguage.hpp"
#include "desk/machine/MachineScope.hpp"

namespace orvane::bench {
namespace {

void languageLookup(benchmark::State& state, OrvaneLanguage language) {
  const desk::MachineScope scope;
  for (auto _ : state) {
    benchmark::DoNotOptimize(language.localized("Pin Dock", "固定 Dock"));
  }
}

BENCHMARK_CAPTURE(languageLookup, fixed, OrvaneLanguage::chinese);
BENCHMARK_CAPTURE(languageLookup, system, OrvaneLanguage::system);

}  // namespace
}  // namespace orvane::bench
