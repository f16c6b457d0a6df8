// The clock of the menu bar.
#include <gtest/gtest.h>

#include "showroom/desktop/MenuClock.hpp"

namespace orvane::showroom {
namespace {

constexpr std::int64_t second = desk::Clock::nanosecondsPerSecond;
constexpr std::int64_t day = 86'400 * second;

desk::Clock clockAt(std::int64_t nanoseconds) {
  desk::Clock clock;
  clock.moveTo(nanoseconds);
  return clock;
}

TEST(MenuClockTest, BeginsOnTheFirstDayOf2026WhichIsAThursday) {
  EXPECT_EQ(menuClockText(desk::Clock()), "Thu 1 Jan  0:00");
  EXPECT_EQ(menuClockDay(desk::Clock()), 1);
}

TEST(MenuClockTest, ShowsFullMinutesOnly) {
  EXPECT_EQ(menuClockText(clockAt(59 * second + second / 2)), "Thu 1 Jan  0:00");
  EXPECT_EQ(menuClockText(clockAt(60 * second)), "Thu 1 Jan  0:01");
  EXPECT_EQ(menuClockText(clockAt(day - 1)), "Thu 1 Jan  23:59");
}

TEST(MenuClockTest, ContinuesAcrossMonthsAndYears) {
  EXPECT_EQ(menuClockText(clockAt(31 * day)), "Sun 1 Feb  0:00");
  EXPECT_EQ(menuClockText(clockAt(364 * day + 9 * 3600 * second)), "Thu 31 Dec  9:00");
  EXPECT_EQ(menuClockText(clockAt(365 * day)), "Fri 1 Jan  0:00");
  EXPECT_EQ(menuClockDay(clockAt(58 * day)), 28);
}

TEST(MenuClockTest, KnowsWhenItsTextChanges) {
  EXPECT_EQ(nanosecondsToNextMinute(desk::Clock()), 60 * second);
  const desk::Clock clock = clockAt(61 * second + 5);
  const std::int64_t wait = nanosecondsToNextMinute(clock);
  EXPECT_EQ(menuClockText(clockAt(clock.now() + wait - 1)), menuClockText(clock));
  EXPECT_NE(menuClockText(clockAt(clock.now() + wait)), menuClockText(clock));
}

}  // namespace
}  // namespace orvane::showroom
