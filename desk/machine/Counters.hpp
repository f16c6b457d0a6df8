// What happened in the machine since it was switched on, as plain counts.
#pragma once

#include <cstdint>

namespace orvane::desk {

struct Counters {
  /// Movements of the pointer by hardware, however they ended.
  std::int64_t hardwareMovements = 0;
  /// Events that came out of the taps at another place than they went in.
  std::int64_t relocatedEvents = 0;
  /// Events that a tap swallowed.
  std::int64_t droppedEvents = 0;
};

}  // namespace orvane::desk
