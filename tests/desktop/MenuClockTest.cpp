// The calendar in the menu bar.
#include <gtest/gtest.h>

#include "showroom/desktop/MenuClock.hpp"

namespace orvane::desk {
namespace {

constexpr std::int64_t second = Clock::nanosecondsPerSecond;
constexpr std::int64_t day = 86'400 * second;

Clock clockAt(std::int64_t nanoseconds) {
  Clock clock;
  clock.moveTo(nanoseconds);
  return clock;
}

TEST(MenuClockTest, BeginsOnTheFirstDayOf2026WhichIsAThursday) {
  EXPECT_EQ(menuClockText(Clock()), "Thu 1 Jan  0:00");
  EXPECT_EQ(menuClockDay(Clock()), 1);
}

TEST(MenuClockTest, ShowsFullMinutesOnly) {
  EXPECT_EQ(menuClockText(clockAt(59 * second + second / 2)), "Thu 1 Jan  0:00");
  EXPECT_EQ(menuClockText(clockAt(60 * second)), "Thu 1 Jan  0:01");
  EXPECT_EQ(menuClockText(clockAt(day - 1)), "Thu 1 Jan  23:59");
}

TEST(MenuClockTest, GoesOnThroughMonthsAndTheYearsEnd) {
  EXPECT_EQ(menuClockText(clockAt(31 * day)), "Sun 1 Feb  0:00");
  EXPECT_EQ(menuClockText(clockAt(364 * day + 9 * 3600 * second)), "Thu 31 Dec  9:00");
  EXPECT_EQ(menuClockText(clockAt(365 * day)), "Fri 1 Jan  0:00");
  EXPECT_EQ(menuClockDay(clockAt(58 * day)), 28);
}

TEST(MenuClockTest, SaysWhenItsTextChanges) {
  EXPECT_EQ(nanosecondsToNextMinute(Clock()), 60 * second);
  const Clock clock = clockAt(61 * second + 5);
  const std::int64_t wait = nanosecondsToNextMinute(clock);
  EXPECT_EQ(menuClockText(clockAt(clock.now() + wait - 1)), menuClockText(clock));
  EXPECT_NE(menuClockText(clockAt(clock.now() + wait)), menuClockText(clock));
}

}  // namespace
}  // namespace orvane::desk
