// Day is one day of the application on a simulated Mac: habits and faults by the lots of one seed,
// and at its end the proof that all can be well again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desk/explore/Lines.hpp"
#include "desk/explore/RarePaths.hpp"
#include "desk/explore/Trial.hpp"

namespace orvane::desk::explore {

/// The promise that is proved at the end of a day.
constexpr const char* liveness = "liveness";

/// What the user wants when everything is well again.
enum class LastWish { pin, prevent };

struct Day {
  std::uint64_t seed = 0;
  LastWish lastWish = LastWish::pin;
  /// The lines that were carried out. Those of the end are among them when it is not what fails.
  Lines lines;
  std::int64_t stepCount = 0;
  std::int64_t eventCount = 0;
  /// By kind, in the order of Habits::faultNames.
  std::vector<std::int64_t> faultCounts;
  RarePaths rarePaths;
  std::uint64_t fingerprint = 0;
  std::optional<Violation> violation;
};

/// A day of at least `steps` lines.
[[nodiscard]] Day liveDay(std::uint64_t seed, std::int64_t steps);

/// A day of these lines, with the same end where it is what failed. `all` is given every line,
/// those of the end too.
[[nodiscard]] std::optional<Violation> repeatDay(const Day& day, const Lines& lines,
                                                 Lines* all = nullptr);

/// The faults stop, the permission is granted, displays are attached, and the user presses once
/// what they want: then the guard must run, and hold.
void bringToGoodEnd(Trial& trial, LastWish lastWish);

}  // namespace orvane::desk::explore
