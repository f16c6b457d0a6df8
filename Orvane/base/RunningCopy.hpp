// Which of several running copies of one program stays, when each of them decides for itself.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace orvane {

struct RunningCopy {
  std::int64_t processID = 0;
  /// Whether it has come to the end of its start-up, and so decided for itself to stay.
  bool isRunning = false;
  /// Seconds by the calendar clock; none when the system does not know.
  std::optional<double> launchedAt;

  friend bool operator==(const RunningCopy&, const RunningCopy&) = default;
};

/// The copy to which the others hand over. A copy that runs already comes before those that still
/// start; then the earlier launch decides, and at last the smaller process number. A copy without a
/// launch date comes after those with one. The order of the copies does not matter; none when there
/// are no copies.
[[nodiscard]] std::optional<RunningCopy> copyThatStays(std::span<const RunningCopy> copies);

}  // namespace orvane
