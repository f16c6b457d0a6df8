// Which of several running copies of one program stays, when each of them decides for itself.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace orvane {

struct RunningCopy {
  std::int64_t processID = 0;
  /// Seconds by the calendar clock; none when the system does not know.
  std::optional<double> launchedAt;

  friend bool operator==(const RunningCopy&, const RunningCopy&) = default;
};

/// The copy to which the others hand over: the one that was launched first; of equal ones that with
/// the least process number. A copy whose launch nobody noted comes after all others. Whoever sees
/// the same copies, in whatever order, gets the same answer; none when there are no copies.
[[nodiscard]] std::optional<RunningCopy> copyThatStays(std::span<const RunningCopy> copies);

}  // namespace orvane
