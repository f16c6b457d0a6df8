// Which of several running copies of one program stays, when each of them decides for itself.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace orvane {

struct RunningCopy {
  std::int64_t processID = 0;
  /// Whether it has finished starting, and so decided to stay.
  bool isRunning = false;
  /// Seconds by the calendar clock; none when the system does not report it.
  std::optional<double> launchedAt;

  friend bool operator==(const RunningCopy&, const RunningCopy&) = default;
};

/// The copy to which the others hand over; none when there are no copies. A running copy takes
/// precedence over those that are still starting, then an earlier launch over a later one, then a
/// smaller process number over a greater one. A copy without a launch date comes after those with
/// one. The order of `copies` does not matter.
[[nodiscard]] std::optional<RunningCopy> copyThatStays(std::span<const RunningCopy> copies);

}  // namespace orvane
