// Converts the machine's nanoseconds to the doubles that the platform returns.
#include "desk/machine/Clock.hpp"

#include <cmath>
#include <limits>

namespace orvane::desk {

namespace {

/// `nanoseconds` since the start in seconds since `secondsAtStart`, with the fraction rounded to
/// 2^-fractionBits. Whole seconds and fraction together need no more than a double's 53 bits for
/// the first weeks of a machine, so the sum is exact. Integer arithmetic, because every event that
/// is moved back reads the time.
template <int fractionBits>
double quantisedSeconds(std::int64_t nanoseconds, std::int64_t secondsAtStart) {
  constexpr std::int64_t second = Clock::nanosecondsPerSecond;
  constexpr std::int64_t steps = std::int64_t{1} << fractionBits;
  const std::int64_t whole = nanoseconds / second;
  const std::int64_t rest = nanoseconds % second;
  const std::int64_t fraction = (rest * steps + second / 2) / second;
  return static_cast<double>(secondsAtStart + whole) +
         static_cast<double>(fraction) / static_cast<double>(steps);
}

}  // namespace

double Clock::mediaTime() const {
  return quantisedSeconds<30>(now_, mediaSecondsAtStart);
}

double Clock::calendarTime() const {
  return quantisedSeconds<20>(now_, calendarSecondsAtStart);
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
