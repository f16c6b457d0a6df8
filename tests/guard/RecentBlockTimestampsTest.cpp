// The timestamps of the last two seconds' blocks, compared with a plain list.
#include <deque>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/guard/RecentBlockTimestamps.hpp"

namespace orvane {
namespace {

// Trivially copyable, so it has no memory on the heap.
static_assert(std::is_trivially_copyable_v<RecentBlockTimestamps>);
static_assert(sizeof(RecentBlockTimestamps) >= 180 * sizeof(double));

TEST(RecentBlockTimestampsTest, MoreThan180AreNeverKept) {
  RecentBlockTimestamps timestamps;
  for (int count = 0; count < 500; ++count) {
    timestamps.record(1000 + count / 1024.0);
  }
  EXPECT_EQ(timestamps.size(), 180U);
  EXPECT_EQ(timestamps.at(179), 1000 + 499 / 1024.0);
  EXPECT_EQ(timestamps.at(0), 1000 + 320 / 1024.0);
}

TEST(RecentBlockTimestampsTest, ClearingForgetsAll) {
  RecentBlockTimestamps timestamps;
  for (int count = 0; count < 200; ++count) {
    timestamps.record(1000);
  }
  timestamps.clear();
  EXPECT_EQ(timestamps.size(), 0U);
  EXPECT_FALSE(timestamps.isRunaway());
  timestamps.record(1000);
  EXPECT_EQ(timestamps.size(), 1U);
  EXPECT_EQ(timestamps.at(0), 1000);
}

RC_GTEST_PROP(RecentBlockTimestampsProperty, AgreesWithAnUnlimitedList, ()) {
  // In 1024ths of a second, so that differences are exact.
  const auto genStep = rc::gen::weightedOneOf<int>(
      {{150, rc::gen::inRange(0, 14)}, {1, rc::gen::element(512, 2047, 2048, 2049)}});
  const auto steps = *rc::gen::scale(6, rc::gen::container<std::vector<int>>(genStep));
  RecentBlockTimestamps timestamps;
  std::deque<double> list;
  double now = 1000;
  for (const int step : steps) {
    now += step / 1024.0;
    timestamps.record(now);
    list.push_back(now);
    std::erase_if(list, [now](double time) { return now - time > 2.0; });
    RC_ASSERT(timestamps.isRunaway() == (list.size() >= 180));
    if (list.size() > 180) {
      continue;
    }
    RC_ASSERT(timestamps.size() == list.size());
    for (std::size_t index = 0; index < list.size(); ++index) {
      RC_ASSERT(timestamps.at(index) == list[index]);
    }
  }
}

}  // namespace
}  // namespace orvane
