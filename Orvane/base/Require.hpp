// require: an assertion that release builds keep, for conditions that only a bug can violate.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace orvane {

/// Ends the process with `message` when `condition` does not hold.
inline void require(bool condition, const char* message) {
  if (!condition) [[unlikely]] {
    std::fprintf(stderr, "Orvane: %s\n", message);
    std::abort();
  }
}

}  // namespace orvane
