// Events per second.
#include <gtest/gtest.h>

#include "desk/machine/Clock.hpp"
#include "showroom/window/EventRate.hpp"

namespace orvane::showroom {
namespace {

constexpr std::int64_t second = desk::Clock::nanosecondsPerSecond;

TEST(EventRateTest, CountsTheLastSecondOnly) {
  EventRate rate;
  EXPECT_EQ(rate.perSecond(5 * second), 0);
  EXPECT_LT(rate.nextChangeAt(), 0);
  rate.add(0);
  rate.add(0);
  rate.add(second / 2);
  EXPECT_EQ(rate.perSecond(second - 1), 3);
  EXPECT_EQ(rate.perSecond(second), 1);
  EXPECT_EQ(rate.nextChangeAt(), second / 2 + second);
  EXPECT_EQ(rate.perSecond(rate.nextChangeAt()), 0);
}

}  // namespace
}  // namespace orvane::showroom
