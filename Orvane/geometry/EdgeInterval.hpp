// A closed stretch along one edge of a display.
#pragma once

#include <vector>

namespace orvane {

/// Positions along the edge in points, in global display coordinates; `start` is less than `end`.
struct EdgeInterval {
  double start = 0;
  double end = 0;

  friend bool operator==(const EdgeInterval&, const EdgeInterval&) = default;

  /// Stretches must be longer than this to count, and ones that are no further apart are joined,
  /// in points.
  static constexpr double minimumLength = 0.5;

  /// The intervals in ascending order, overlapping and nearly touching ones united.
  [[nodiscard]] static std::vector<EdgeInterval> merge(std::vector<EdgeInterval> intervals);

  /// What is left of `whole` without `removed`, in ascending order; pieces of at most
  /// `minimumLength` are dropped.
  [[nodiscard]] static std::vector<EdgeInterval> subtract(EdgeInterval whole,
                                                          std::vector<EdgeInterval> removed);
};

}  // namespace orvane
