// The virtual clock: exact nanoseconds, and doubles that differ exactly by whole seconds.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "desk/machine/Clock.hpp"

namespace orvane::desk {
namespace {

TEST(ClockTest, NeverGoesBack) {
  Clock clock;
  clock.moveTo(500);
  clock.moveTo(499);
  EXPECT_EQ(clock.now(), 500);
}

TEST(ClockTest, MomentsWholeSecondsApartDifferExactlyInDoubles) {
  for (const std::int64_t fraction :
       {1LL, 50'000'000LL, 100'000'000LL, 333'333'333LL, 700'000'000LL, 999'999'999LL}) {
    for (const std::int64_t seconds : {1LL, 2LL, 25LL, 30LL, 2000LL, 86'400LL, 3'000'000LL}) {
      Clock clock;
      clock.moveTo(fraction);
      const double mediaBefore = clock.mediaTime();
      const double calendarBefore = clock.calendarTime();
      clock.moveTo(fraction + seconds * Clock::nanosecondsPerSecond);
      EXPECT_EQ(clock.mediaTime() - mediaBefore, static_cast<double>(seconds));
      EXPECT_EQ(clock.calendarTime() - calendarBefore, static_cast<double>(seconds));
    }
  }
}

TEST(ClockTest, KeepsFractionsToANanosecond) {
  Clock clock;
  clock.moveTo(1'234'567'890);
  EXPECT_NEAR(clock.mediaTime(), 1001.234567890, 0.5e-9 + std::ldexp(1, -31));
}

TEST(ClockTest, TurnsSecondsIntoTheNearestNanosecond) {
  EXPECT_EQ(Clock::fromSeconds(0.05), 50'000'000);
  EXPECT_EQ(Clock::fromSeconds(0.1 + 0.2), 300'000'000);
  EXPECT_EQ(Clock::fromSeconds(0.0000000004), 0);
  EXPECT_EQ(Clock::fromSeconds(0.0000000006), 1);
}

TEST(ClockTest, ClampsSecondsThatAreNotADuration) {
  EXPECT_EQ(Clock::fromSeconds(-1), 0);
  EXPECT_EQ(Clock::fromSeconds(std::nan("")), 0);
  EXPECT_EQ(Clock::fromSeconds(std::numeric_limits<double>::infinity()),
            std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(Clock::fromSeconds(1e300), std::numeric_limits<std::int64_t>::max());
}

}  // namespace
}  // namespace orvane::desk
