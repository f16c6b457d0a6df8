// Which copy of a program stays. Every copy decides for itself, so all must agree.
#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

#include "macos/handover/RunningCopy.hpp"

namespace orvane {
namespace {

constexpr RunningCopy early{900, false, 100.0};
constexpr RunningCopy late{200, false, 101.5};
constexpr RunningCopy unknown{100, false, std::nullopt};

TEST(RunningCopyTest, WithoutCopiesNoneRemains) {
  EXPECT_EQ(copyThatStays({}), std::nullopt);
}

TEST(RunningCopyTest, ASingleCopyRemains) {
  EXPECT_EQ(copyThatStays(std::vector{unknown}), unknown);
}

TEST(RunningCopyTest, ACopyThatIsAlreadyRunningRemainsHoweverItWasLaunched) {
  constexpr RunningCopy running{300, true, std::nullopt};
  EXPECT_EQ(copyThatStays(std::vector{early, late, unknown, running}), running);
  EXPECT_EQ(copyThatStays(std::vector{early, running}), running);
}

TEST(RunningCopyTest, OfCopiesWithUnknownLaunchTimesTheLowestNumberRemains) {
  EXPECT_EQ(copyThatStays(std::vector{RunningCopy{7, false, std::nullopt},
                                      RunningCopy{5, false, std::nullopt}}),
            (RunningCopy{5, false, std::nullopt}));
}

TEST(RunningCopyTest, InAnyOrderTheFirstLaunchedOrElseTheLowestNumberRemains) {
  std::vector<RunningCopy> copies = {
      early, late, unknown, {50, false, std::nullopt}, {60, false, 100.0}};
  const auto byNumber = [](const RunningCopy& first, const RunningCopy& second) {
    return first.processID < second.processID;
  };
  std::ranges::sort(copies, byNumber);
  int orders = 0;
  do {
    EXPECT_EQ(copyThatStays(copies), (RunningCopy{60, false, 100.0}));
    ++orders;
  } while (std::ranges::next_permutation(copies, byNumber).found);
  EXPECT_EQ(orders, 120);
}

}  // namespace
}  // namespace orvane
