// The explorer: day after day of the whole application on simulated Macs, by lots.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace orvane::desk {

struct ExploreOptions {
  /// That of the first day; each day after it has the next one.
  std::uint64_t seed = 1;
  std::int64_t days = 100;
  /// The lines of a day before its end begins.
  std::int64_t steps = 250;
  /// Whether the first day that fails is cut down to a short script.
  bool shrinks = false;
  /// Whether a rare state that was not reached is a failure.
  bool needsAllPaths = false;
  /// Scripts to look after instead of days.
  std::vector<std::string> scripts = {};
};

/// Returns the program's exit status: 0 when all went well, 1 when a promise was broken, 2 when a
/// file cannot be read or written.
int runExplore(const ExploreOptions& options, std::ostream& output, std::ostream& errors);

}  // namespace orvane::desk
