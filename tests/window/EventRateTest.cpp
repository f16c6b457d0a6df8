// Events per second.
#include <gtest/gtest.h>

#include "desk/machine/Clock.hpp"
#include "showroom/window/EventRate.hpp"

namespace orvane::showroom {
namespace {

constexpr std::int64_t second = desk::Clock::nanosecondsPerSecond;

TEST(EventRateTest, IsNothingBeforeTheFirstEvent) {
  EXPECT_EQ(EventRate().perSecond(5 * second), 0);
  EXPECT_LT(EventRate().nextChangeAt(), 0);
}

TEST(EventRateTest, CountsTheLastSecondOnly) {
  EventRate rate;
  rate.note(0, 3);
  rate.note(second / 2, 4);
  EXPECT_EQ(rate.perSecond(second / 2), 7);
  EXPECT_EQ(rate.perSecond(second - 1), 7);
  EXPECT_EQ(rate.perSecond(second), 4);
  EXPECT_EQ(rate.perSecond(second + second / 2), 0);
}

TEST(EventRateTest, SaysWhenTheLastEventIsForgotten) {
  EventRate rate;
  rate.note(100, 1);
  rate.note(200, 1);
  EXPECT_EQ(rate.nextChangeAt(), 200 + second);
  EXPECT_EQ(rate.perSecond(rate.nextChangeAt() - 1), 1);
  EXPECT_EQ(rate.perSecond(rate.nextChangeAt()), 0);
}

TEST(EventRateTest, IgnoresABatchOfNone) {
  EventRate rate;
  rate.note(100, 0);
  EXPECT_LT(rate.nextChangeAt(), 0);
}

}  // namespace
}  // namespace orvane::showroom
