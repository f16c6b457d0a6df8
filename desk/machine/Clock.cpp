// How the machine's nanoseconds become the doubles that the platform hands out.
#include "desk/machine/Clock.hpp"

#include <cmath>
#include <limits>

namespace orvane::desk {

namespace {

/// `nanoseconds` since the start in seconds since `secondsAtStart`, with the fraction rounded to
/// 2^-fractionBits. Whole seconds and fraction together need no more than a double's 53 bits for
/// the first weeks of a machine, so the sum is exact.
double quantisedSeconds(std::int64_t nanoseconds, std::int64_t secondsAtStart, int fractionBits) {
  const std::int64_t whole = nanoseconds / Clock::nanosecondsPerSecond;
  const std::int64_t rest = nanoseconds % Clock::nanosecondsPerSecond;
  const double steps = std::round(std::ldexp(static_cast<double>(rest), fractionBits) /
                                  static_cast<double>(Clock::nanosecondsPerSecond));
  return static_cast<double>(secondsAtStart + whole) + std::ldexp(steps, -fractionBits);
}

}  // namespace

double Clock::mediaTime() const {
  return quantisedSeconds(now_, mediaSecondsAtStart, 30);
}

double Clock::calendarTime() const {
  return quantisedSeconds(now_, calendarSecondsAtStart, 20);
}

void Clock::moveTo(std::int64_t nanoseconds) {
  if (nanoseconds > now_) {
    now_ = nanoseconds;
  }
}

std::int64_t Clock::fromSeconds(double seconds) {
  if (!(seconds > 0)) {
    return 0;
  }
  const double nanoseconds = std::round(seconds * static_cast<double>(nanosecondsPerSecond));
  // 2^63 is the first double that does not fit.
  if (nanoseconds >= 0x1p63) {
    return std::numeric_limits<std::int64_t>::max();
  }
  return static_cast<std::int64_t>(nanoseconds);
}

}  // namespace orvane::desk
