// How much one command of a script may ask for.
#pragma once

#include <cstdint>

#include "desk/machine/Clock.hpp"

namespace orvane::desk::script {

struct ScriptLimits {
  /// How often one command may repeat itself.
  std::int64_t repetitions = 1'000'000'000;
  /// How late it may become: about 95 years after the machine was switched on.
  std::int64_t clockNanoseconds = 3'000'000'000 * Clock::nanosecondsPerSecond;
  /// Whether a script may write files.
  bool allowsFiles = true;
};

}  // namespace orvane::desk::script
