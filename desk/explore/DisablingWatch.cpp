// Recognises the lines that disable the tap.
#include "desk/explore/DisablingWatch.hpp"

#include <cstddef>

namespace orvane::desk::explore {

namespace {

constexpr std::size_t limit = 5;
constexpr std::int64_t window = 10 * Clock::nanosecondsPerSecond;
/// The guard looks at its tap once a second. The first look that finds it disabled enables it, the
/// second replaces it, which counts as disabling.
constexpr std::int64_t replacement = 2 * Clock::nanosecondsPerSecond;
/// The guard's clock counts seconds as floating-point numbers.
constexpr std::int64_t rounding = 1000;

void forgetOlderThan(std::deque<std::int64_t>& times, std::int64_t age, std::int64_t now) {
  while (!times.empty() && now - times.front() > age) {
    times.pop_front();
  }
}

}  // namespace

std::optional<Violation> DisablingWatch::check(const Step& step) {
  const Observation& before = step.before;
  const Observation& after = step.after;
  // A guard that shut itself off and has started again counts its disablings anew. In a modal
  // session it counts as running until it is notified of displays.
  const bool isBack = step.wasNotified && !before.isTapEnabled;
  if (!step.isWithinRun() || !before.isGuardRunning || step.filter.hasShutOff || isBack) {
    certain_.clear();
  }
  forgetOlderThan(possible_, window + replacement + rounding, after.now);
  forgetOlderThan(certain_, window - rounding, after.now);
  if (before.isTrusted && !after.isTrusted) {
    // The permission ends the tap, too.
    possible_.push_back(after.now);
  }
  const bool isDisabled = after.isLaunched && after.isGuardRunning && !after.isTapEnabled;
  if (!step.line.starts_with("tap disabled ")) {
    disabledSince_ = isDisabled && after.isTrusted ? disabledSince_.value_or(after.now)
                                                   : std::optional<std::int64_t>();
    return disabledSince_ && after.now - *disabledSince_ > replacement
               ? std::optional(Violation{"tap", "it stays disabled"})
               : std::nullopt;
  }
  disabledSince_.reset();
  possible_.push_back(after.now);
  const bool hasNotice = step.line.ends_with(" timeout") || step.line.ends_with(" userinput");
  if (!hasNotice || !step.isWithinRun() || !before.isTrusted || !before.isTapEnabled) {
    return std::nullopt;
  }
  certain_.push_back(after.now);
  const bool hasGivenUp = isDisabled || (after.isGuardWaiting && !step.wasNotified);
  if (possible_.size() < limit && hasGivenUp) {
    return Violation{"tap", "the guard did not enable it at once"};
  }
  if (certain_.size() >= limit && after.isTapEnabled) {
    return Violation{"tap", "the guard enabled it for the fifth time within ten seconds"};
  }
  return std::nullopt;
}

}  // namespace orvane::desk::explore
