// Require: an assertion that stays in release builds, for what cannot happen and must not go on if
// it does.
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
