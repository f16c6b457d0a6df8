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

/// The copy to which the others hand over: one that runs already; of several that start at one
/// time, the one that was launched first, and of equal ones that with the least process number. A
/// copy whose launch nobody noted comes after those whose launch is known. All who see the same
/// copies, in any order, get the same answer; none when there are no copies.
[[nodiscard]] std::optional<RunningCopy> copyThatStays(std::span<const RunningCopy> copies);

}  // namespace orvane
