// AllocationCounter counts every allocation of a test program that is linked with its source.
#pragma once

#include <cstddef>

namespace orvane {

class AllocationCounter {
 public:
  AllocationCounter() = delete;

  /// How often memory was allocated with new since the program began.
  [[nodiscard]] static std::size_t count();
};

}  // namespace orvane
