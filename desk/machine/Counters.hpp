// Counts of pointer events, and of mistakes with them, since the machine was switched on.
#pragma once

#include <cstdint>

namespace orvane::desk {

struct Counters {
  /// Movements of the pointer by hardware, whatever their outcome.
  std::int64_t hardwareMovements = 0;
  /// Events whose location a tap changed.
  std::int64_t relocatedEvents = 0;
  /// Events that a tap dropped.
  std::int64_t droppedEvents = 0;
  /// Ports of taps that were released without being invalidated.
  std::int64_t abandonedPorts = 0;
};

}  // namespace orvane::desk
