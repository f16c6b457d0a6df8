// A closed interval along one edge of a display.
#include "Orvane/geometry/EdgeInterval.hpp"

#include <algorithm>
#include <utility>

namespace orvane {

std::vector<EdgeInterval> EdgeInterval::merge(std::vector<EdgeInterval> intervals) {
  std::ranges::stable_sort(intervals, {}, &EdgeInterval::start);
  std::vector<EdgeInterval> merged;
  for (const EdgeInterval& interval : intervals) {
    if (!merged.empty() && interval.start <= merged.back().end + minimumLength) {
      merged.back().end = std::max(merged.back().end, interval.end);
    } else {
      merged.push_back(interval);
    }
  }
  return merged;
}

std::vector<EdgeInterval> EdgeInterval::subtract(EdgeInterval whole,
                                                 std::vector<EdgeInterval> removed) {
  std::vector<EdgeInterval> pieces;
  double cursor = whole.start;
  const auto keepUpTo = [&](double limit) {
    if (limit - cursor > minimumLength) {
      pieces.push_back({cursor, limit});
    }
  };
  for (const EdgeInterval& gap : merge(std::move(removed))) {
    keepUpTo(std::min(gap.start, whole.end));
    cursor = std::max(cursor, gap.end);
  }
  keepUpTo(whole.end);
  return pieces;
}

}  // namespace orvane
