// The machine's time: virtual, in nanoseconds since the machine was switched on. Nothing here
// reads the time of the computer that runs the simulation.
#pragma once

#include <cstdint>

namespace orvane::desk {

class Clock {
 public:
  static constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;
  /// The media clock's reading when the machine is switched on.
  static constexpr std::int64_t mediaSecondsAtStart = 1000;
  /// The calendar clock's reading then: 1 January 2026, 0:00 UTC, which is 9131 days after 1
  /// January 2001.
  static constexpr std::int64_t calendarSecondsAtStart = 9131LL * 86'400;

  /// Nanoseconds since the machine was switched on.
  [[nodiscard]] std::int64_t now() const { return now_; }
  /// Exact, for printing and comparing.
  [[nodiscard]] std::int64_t mediaNanoseconds() const {
    return now_ + mediaSecondsAtStart * nanosecondsPerSecond;
  }

  /// Seconds, as CACurrentMediaTime returns them. The fraction is rounded to 2^-30 s, so that two
  /// moments whole seconds apart differ by exactly that many seconds in doubles.
  [[nodiscard]] double mediaTime() const;
  /// Seconds since 1 January 2001, as CFAbsoluteTimeGetCurrent returns them, rounded to 2^-20 s for
  /// the same reason.
  [[nodiscard]] double calendarTime() const;

  /// Time never goes back: an earlier moment changes nothing.
  void moveTo(std::int64_t nanoseconds);

  /// Rounds to the nearest nanosecond. Negative and NaN give 0; what does not fit gives the
  /// maximum.
  [[nodiscard]] static std::int64_t fromSeconds(double seconds);

 private:
  std::int64_t now_ = 0;
};

}  // namespace orvane::desk
