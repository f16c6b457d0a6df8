// The number of blocks, and the window in which they count.
#include <gtest/gtest.h>

#include "desk/explore/RunawayWatch.hpp"
#include "desk/machine/Clock.hpp"

namespace orvane::desk::explore {
namespace {

constexpr std::int64_t second = Clock::nanosecondsPerSecond;

/// Whether any of `count` blocks in a row, `interval` nanoseconds apart, is a violation; the last
/// one shuts the guard off or not.
bool isViolated(RunawayWatch& watch, int count, std::int64_t interval, bool hasShutOff) {
  bool found = false;
  for (int index = 1; index <= count; ++index) {
    found = watch.noteBlock(index * interval, hasShutOff && index == count).has_value() || found;
  }
  return found;
}

TEST(RunawayWatch, RequiresAShutOffWithTheBlockNumber180) {
  RunawayWatch watch;
  EXPECT_FALSE(isViolated(watch, 179, second / 100, false));
  EXPECT_TRUE(watch.noteBlock(2 * second, false).has_value());
}

TEST(RunawayWatch, AcceptsAShutOffOnlyThen) {
  RunawayWatch inTime;
  EXPECT_FALSE(isViolated(inTime, 180, second / 100, true));
  RunawayWatch early;
  EXPECT_TRUE(isViolated(early, 179, 1000, true));
}

TEST(RunawayWatch, ForgetsBlocksAfterTwoSeconds) {
  RunawayWatch slow;
  EXPECT_FALSE(isViolated(slow, 400, second / 50, false));
  RunawayWatch shutOff;
  EXPECT_TRUE(isViolated(shutOff, 180, second / 50, true));
}

TEST(RunawayWatch, RequiresNothingOfBlocksInSeveralSteps) {
  RunawayWatch watch;
  EXPECT_FALSE(isViolated(watch, 100, 1000, false));
  watch.beginStep();
  EXPECT_FALSE(isViolated(watch, 100, 1000, false)) << "the guard may have been stopped";
}

}  // namespace
}  // namespace orvane::desk::explore
