// Merging and subtracting intervals of an edge, on a grid of sixteenths of a point, where sums are
// exact.
#include <algorithm>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/geometry/EdgeInterval.hpp"
#include "tests/geometry/EdgeOracle.hpp"
#include "tests/support/GeometryPrinting.hpp"

namespace orvane {
namespace {

using Intervals = std::vector<EdgeInterval>;

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

RC_GTEST_PROP(EdgeIntervalProperty, MergingAgreesWithExaminingEveryCell, ()) {
  const Intervals intervals = *genIntervals();
  RC_ASSERT(EdgeInterval::merge(intervals) == mergedOnTheGrid(intervals));
}

RC_GTEST_PROP(EdgeIntervalProperty, SubtractingAgreesWithExaminingEveryCell, ()) {
  const EdgeInterval whole = *genInterval();
  const Intervals removed = *genIntervals();
  Intervals expected = oracle::stretchesWhere(
      whole.start, whole.end, cell, [&](double place) { return !isWithin(place, removed); });
  std::erase_if(expected, [](const EdgeInterval& piece) { return piece.end - piece.start <= 0.5; });
  RC_ASSERT(EdgeInterval::subtract(whole, removed) == expected);
}

}  // namespace
}  // namespace orvane
