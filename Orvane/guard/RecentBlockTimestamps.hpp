// The times of the guard's blocks during the last two seconds, in a ring of fixed size, so that the
// event path never allocates.
#pragma once

#include <array>
#include <cstddef>

namespace orvane {

/// Media-clock times in seconds, oldest first.
class RecentBlockTimestamps {
 public:
  /// This many blocks within the window count as runaway blocking; also the ring's capacity.
  static constexpr std::size_t runawayCount = 180;
  /// How long a block is remembered, in seconds.
  static constexpr double windowSeconds = 2.0;

  [[nodiscard]] std::size_t size() const { return count_; }
  /// `index` must be less than the size; the oldest timestamp is at 0.
  [[nodiscard]] double at(std::size_t index) const { return timestamps_[wrapped(oldest_ + index)]; }

  /// Adds `now` and drops the timestamps that have left the window. The clock is monotonic, so the
  /// oldest always come first.
  void record(double now) {
    if (count_ == runawayCount) {
      forgetOldest();
    }
    timestamps_[wrapped(oldest_ + count_)] = now;
    ++count_;
    while (now - at(0) > windowSeconds) {
      forgetOldest();
    }
  }

  [[nodiscard]] bool isRunaway() const { return count_ >= runawayCount; }

  void clear() { count_ = 0; }

 private:
  /// `place` is always less than twice the capacity, so one subtraction suffices; a division would
  /// cost more than the rest of `record`.
  [[nodiscard]] static constexpr std::size_t wrapped(std::size_t place) {
    return place < runawayCount ? place : place - runawayCount;
  }
  void forgetOldest() {
    oldest_ = wrapped(oldest_ + 1);
    --count_;
  }

  std::array<double, runawayCount> timestamps_{};
  std::size_t oldest_ = 0;
  std::size_t count_ = 0;
};

}  // namespace orvane
