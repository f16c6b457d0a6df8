// The explorer: random days of the whole application on simulated Macs.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace orvane::desk::explore {

struct ExploreOptions {
  /// The seed of the first day; each further day has the next number.
  std::uint64_t seed = 1;
  std::int64_t days = 100;
  /// The random lines of a day.
  std::int64_t steps = 250;
  /// Whether the first failing day is reduced to a short script.
  bool shrinks = false;
  /// Whether an unreached rare state is a failure.
  bool needsAllPaths = false;
  /// Scripts to check instead of random days.
  std::vector<std::string> scripts = {};
};

/// Returns the exit status: 0 for success, 1 for a violated invariant, 2 if a file cannot be read
/// or written.
int runExplore(const ExploreOptions& options, std::ostream& output, std::ostream& errors);

}  // namespace orvane::desk::explore
