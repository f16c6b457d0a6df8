// Day is one random run of the application on a simulated Mac: actions and faults that one seed
// determines, and a liveness check at its end.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "desk/explore/CheckedSession.hpp"
#include "desk/explore/Lines.hpp"
#include "desk/explore/RarePaths.hpp"

namespace orvane::desk::explore {

/// The invariant that is checked at the end of a day.
constexpr const char* liveness = "liveness";

/// The lock that the user switches on at the end of a day.
enum class FinalMode { pin, prevent };

struct Day {
  std::uint64_t seed = 0;
  FinalMode finalMode = FinalMode::pin;
  /// The lines that ran; without those of the liveness check if that is what failed.
  Lines lines;
  std::int64_t stepCount = 0;
  std::int64_t eventCount = 0;
  /// In the order of ActionGenerator::faultNames().
  std::vector<std::int64_t> faultCounts;
  RarePaths rarePaths;
  std::uint64_t fingerprint = 0;
  std::optional<Violation> violation;
};

/// Runs at least `steps` random lines, then the liveness check.
[[nodiscard]] Day simulateDay(std::uint64_t seed, std::int64_t steps);

/// Runs these lines, and the liveness check if that is what failed. `all` receives every line that
/// ran.
[[nodiscard]] std::optional<Violation> replayDay(const Day& day, const Lines& lines,
                                                 Lines* all = nullptr);

/// Ends all faults, grants the permission, arranges at least two displays and presses one switch.
/// The guard must then run and keep the Dock from the forbidden edges.
void checkLiveness(CheckedSession& session, FinalMode finalMode);

}  // namespace orvane::desk::explore
