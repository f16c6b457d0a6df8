// Merging and subtracting intervals of an edge.
#include <algorithm>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/geometry/EdgeInterval.hpp"
#include "tests/support/EdgeOracle.hpp"
#include "tests/support/GeometryPrinting.hpp"

namespace orvane {
namespace {

using Intervals = std::vector<EdgeInterval>;

TEST(EdgeIntervalTest, MergingNothingGivesNothing) {
  EXPECT_EQ(EdgeInterval::merge({}), Intervals{});
}

TEST(EdgeIntervalTest, MergingSortsByStart) {
  EXPECT_EQ(EdgeInterval::merge({{50, 60}, {10, 20}, {30, 40}}),
            (Intervals{{10, 20}, {30, 40}, {50, 60}}));
}

TEST(EdgeIntervalTest, AGapOfLessThanHalfAPointIsClosed) {
  EXPECT_EQ(EdgeInterval::merge({{0, 100}, {100.4, 200}}), (Intervals{{0, 200}}));
}

TEST(EdgeIntervalTest, AGapOfExactlyHalfAPointIsClosed) {
  EXPECT_EQ(EdgeInterval::merge({{0, 100}, {100.5, 200}}), (Intervals{{0, 200}}));
}

TEST(EdgeIntervalTest, AGapOfMoreThanHalfAPointIsKept) {
  EXPECT_EQ(EdgeInterval::merge({{0, 100}, {100.6, 200}}), (Intervals{{0, 100}, {100.6, 200}}));
}

TEST(EdgeIntervalTest, AnIntervalWithinAnotherDoesNotShortenIt) {
  EXPECT_EQ(EdgeInterval::merge({{0, 100}, {10, 20}, {90, 95}}), (Intervals{{0, 100}}));
}

TEST(EdgeIntervalTest, IntervalsThatBeginTogetherAreUnited) {
  EXPECT_EQ(EdgeInterval::merge({{0, 10}, {0, 30}, {0, 20}}), (Intervals{{0, 30}}));
}

TEST(EdgeIntervalTest, SmallGapsAreClosedOneAfterAnother) {
  EXPECT_EQ(EdgeInterval::merge({{0, 1}, {1.5, 2}, {2.5, 3}}), (Intervals{{0, 3}}));
}

TEST(EdgeIntervalTest, RemovingNothingLeavesTheWhole) {
  EXPECT_EQ(EdgeInterval::subtract({10, 20}, {}), (Intervals{{10, 20}}));
}

TEST(EdgeIntervalTest, RemovingTheWholeLeavesNothing) {
  EXPECT_EQ(EdgeInterval::subtract({10, 20}, {{10, 20}}), Intervals{});
  EXPECT_EQ(EdgeInterval::subtract({10, 20}, {{0, 100}}), Intervals{});
}

TEST(EdgeIntervalTest, WhatIsLeftIsInOrderAlongTheEdge) {
  EXPECT_EQ(EdgeInterval::subtract({0, 100}, {{60, 70}, {20, 30}}),
            (Intervals{{0, 20}, {30, 60}, {70, 100}}));
}

TEST(EdgeIntervalTest, AGapOfExactlyHalfAPointIsNotAPiece) {
  EXPECT_EQ(EdgeInterval::subtract({0, 200}, {{0, 100}, {100.5, 200}}), Intervals{});
  EXPECT_EQ(EdgeInterval::subtract({0, 10}, {{0.5, 9.5}}), Intervals{});
}

TEST(EdgeIntervalTest, AGapOfSixTenthsIsAPiece) {
  const Intervals pieces = EdgeInterval::subtract({0, 200}, {{0, 100}, {100.6, 200}});
  ASSERT_EQ(pieces.size(), 1U);
  EXPECT_EQ(pieces[0], (EdgeInterval{100, 100.6}));
}

TEST(EdgeIntervalTest, AnIntervalOutsideTheWholeRemovesNothing) {
  EXPECT_EQ(EdgeInterval::subtract({10, 20}, {{0, 5}}), (Intervals{{10, 20}}));
  EXPECT_EQ(EdgeInterval::subtract({10, 20}, {{30, 40}}), (Intervals{{10, 20}}));
  EXPECT_EQ(EdgeInterval::subtract({10, 20}, {{0, 12}, {18, 40}}), (Intervals{{12, 18}}));
}

TEST(EdgeIntervalTest, EqualityLooksAtBothEnds) {
  EXPECT_EQ((EdgeInterval{1, 2}), (EdgeInterval{1, 2}));
  EXPECT_NE((EdgeInterval{1, 2}), (EdgeInterval{1, 3}));
  EXPECT_NE((EdgeInterval{1, 2}), (EdgeInterval{0, 2}));
}

// Properties on a grid of sixteenths of a point, where sums are exact.

constexpr double cell = 1.0 / 16;

rc::Gen<EdgeInterval> genInterval() {
  const auto start = rc::gen::inRange(-400, 400);
  const auto length = rc::gen::oneOf(rc::gen::inRange(1, 12), rc::gen::inRange(1, 200));
  return rc::gen::apply(
      [](int startCells, int cells) {
        return EdgeInterval{startCells * cell, (startCells + cells) * cell};
      },
      start, length);
}

rc::Gen<Intervals> genIntervals() {
  return rc::gen::scale(0.2, rc::gen::container<Intervals>(genInterval()));
}

bool isWithin(double place, const Intervals& intervals) {
  return std::ranges::any_of(intervals, [place](const EdgeInterval& interval) {
    return place > interval.start && place < interval.end;
  });
}

/// The cells that the intervals cover, with the gaps of at most half a point between them.
Intervals mergedOnTheGrid(const Intervals& intervals) {
  Intervals merged;
  for (const auto& [start, end] : oracle::stretchesWhere(
           -30, 40, cell, [&](double place) { return isWithin(place, intervals); })) {
    if (!merged.empty() && start - merged.back().end <= 0.5) {
      merged.back().end = end;
    } else {
      merged.push_back({start, end});
    }
  }
  return merged;
}

RC_GTEST_PROP(EdgeIntervalProperty, MergingAgreesWithAFineGrid, ()) {
  const Intervals intervals = *genIntervals();
  RC_ASSERT(EdgeInterval::merge(intervals) == mergedOnTheGrid(intervals));
}

RC_GTEST_PROP(EdgeIntervalProperty, TheOrderOfTheInputDoesNotMatter, ()) {
  const Intervals intervals = *genIntervals();
  Intervals reversed(intervals.rbegin(), intervals.rend());
  RC_ASSERT(EdgeInterval::merge(intervals) == EdgeInterval::merge(reversed));
}

RC_GTEST_PROP(EdgeIntervalProperty, MergingTwiceChangesNothing, ()) {
  const Intervals once = EdgeInterval::merge(*genIntervals());
  RC_ASSERT(EdgeInterval::merge(once) == once);
}

RC_GTEST_PROP(EdgeIntervalProperty, SubtractingAgreesWithAFineGrid, ()) {
  const EdgeInterval whole = *genInterval();
  const Intervals removed = *genIntervals();
  Intervals expected;
  for (const auto& [start, end] : oracle::stretchesWhere(
           whole.start, whole.end, cell, [&](double place) { return !isWithin(place, removed); })) {
    if (end - start > 0.5) {
      expected.push_back({start, end});
    }
  }
  RC_ASSERT(EdgeInterval::subtract(whole, removed) == expected);
}

}  // namespace
}  // namespace orvane
