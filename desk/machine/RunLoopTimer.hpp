// RunLoopTimer is one repeating timer of the run loop.
#pragma once

#include <cstdint>
#include <functional>

namespace orvane::desk {

struct RunLoopTimer {
  std::int64_t intervalNanoseconds;
  /// The set of modes in which it fires, as in RunLoop::ModeSet.
  std::uint8_t modes;
  std::function<void()> tick;
  std::int64_t dueNanoseconds;
  /// Orders what is due at the same time.
  std::uint64_t sequence;
  /// Fires together with the other coalesced timers of its interval.
  bool isCoalesced = false;
  bool isValid = true;
};

}  // namespace orvane::desk
