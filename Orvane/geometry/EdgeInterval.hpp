// A closed interval along one edge of a display.
#pragma once

#include <vector>

namespace orvane {

/// Positions along the edge in points, in global display coordinates; `start` is less than `end`.
struct EdgeInterval {
  double start = 0;
  double end = 0;

  friend bool operator==(const EdgeInterval&, const EdgeInterval&) = default;

  /// In points. Intervals of at most this length are dropped, and gaps of at most this length
  /// closed.
  static constexpr double minimumLength = 0.5;

  /// The intervals in ascending order, with overlapping and nearly touching ones merged.
  [[nodiscard]] static std::vector<EdgeInterval> merge(std::vector<EdgeInterval> intervals);

  /// The parts of `whole` outside of `removed`, in ascending order; parts of at most
  /// `minimumLength` are dropped.
  [[nodiscard]] static std::vector<EdgeInterval> subtract(EdgeInterval whole,
                                                          std::vector<EdgeInterval> removed);
};

}  // namespace orvane
