// NotificationDelivery is how soon, and how often, the system's notifications reach the process.
#pragma once

#include <cstdint>

namespace orvane::desk {

struct NotificationDelivery {
  /// A moody system comes so much later, in nanoseconds; 0 is at once.
  std::int64_t delayNanoseconds = 0;
  /// Each one comes twice, one right after the other.
  bool isDoubled = false;
};

}  // namespace orvane::desk
