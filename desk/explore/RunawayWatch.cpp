// Keeps the times of the blocks in the window.
#include "desk/explore/RunawayWatch.hpp"

#include <cstddef>
#include <string>

#include "desk/machine/Clock.hpp"

namespace orvane::desk::explore {

namespace {

constexpr std::size_t runawayCount = 180;
constexpr std::int64_t window = 2 * Clock::nanosecondsPerSecond;
/// The guard's clock counts seconds as floating-point numbers.
constexpr std::int64_t rounding = 1000;

void note(std::deque<std::int64_t>& times, std::int64_t now, std::int64_t maximumAge) {
  times.push_back(now);
  while (now - times.front() > maximumAge) {
    times.pop_front();
  }
}

}  // namespace

std::optional<Violation> RunawayWatch::noteBlock(std::int64_t now, bool hasShutOff) {
  note(possible_, now, window + rounding);
  note(certain_, now, window - rounding);
  if (hasShutOff && possible_.size() < runawayCount) {
    return Violation{"runaway", "the guard shut itself off after " +
                                    std::to_string(possible_.size()) + " blocks"};
  }
  if (!hasShutOff && certain_.size() >= runawayCount) {
    return Violation{
        "runaway",
        "the guard did not shut itself off after " + std::to_string(certain_.size()) + " blocks",
        "guard.running false"};
  }
  if (hasShutOff) {
    possible_.clear();
    certain_.clear();
  }
  return std::nullopt;
}

}  // namespace orvane::desk::explore
