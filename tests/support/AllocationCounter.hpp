// AllocationCounter counts heap allocations. A test executable that contains AllocationCounter.cpp
// has every operator new replaced.
#pragma once

#include <cstddef>

namespace orvane {

/// Counts from its construction on.
class AllocationCounter {
 public:
  AllocationCounter() : atStart_(total()) {}
  [[nodiscard]] std::size_t count() const { return total() - atStart_; }

 private:
  /// The allocations of the whole process.
  [[nodiscard]] static std::size_t total();

  std::size_t atStart_;
};

}  // namespace orvane
