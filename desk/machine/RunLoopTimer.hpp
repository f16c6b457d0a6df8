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
  /// Its place among what is due at the same time.
  std::uint64_t sequence;
  /// It fires together with the others of its interval that share the beat.
  bool sharesBeat = false;
  bool isValid = true;
};

}  // namespace orvane::desk
