// When the guard blocked during the last two seconds. Its room is taken once, with the guard, so
// that the event path never allocates.
#pragma once

#include <array>
#include <cstddef>

namespace orvane {

/// Times of the media clock in seconds, in the order they came.
class RecentBlockTimestamps {
 public:
  /// So many blocks within the window mean that blocking has run away; no more are ever kept.
  static constexpr std::size_t runawayCount = 180;
  /// How long a block is remembered, in seconds.
  static constexpr double windowSeconds = 2.0;

  [[nodiscard]] std::size_t size() const { return count_; }
  [[nodiscard]] bool isEmpty() const { return count_ == 0; }
  /// The timestamp at `index`, which is below the size; the oldest at 0.
  [[nodiscard]] double at(std::size_t index) const { return timestamps_[wrapped(oldest_ + index)]; }

  /// Adds `now` and forgets what is more than the window older. The clock never goes back, so the
  /// oldest are always the first.
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
  /// Both parts of a place are within the ring, so it is passed once at the most; a remainder would
  /// cost more than all the rest of a block.
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
