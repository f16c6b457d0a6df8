// The course of a day.
#include "desk/explore/Day.hpp"

#include "desk/explore/Habits.hpp"
#include "desk/explore/Lots.hpp"

namespace orvane::desk::explore {

Day liveDay(std::uint64_t seed, std::int64_t steps) {
  Lots lots(seed);
  Habits habits(lots);
  Day day;
  day.seed = seed;
  day.lastWish = lots.chance(500) ? LastWish::pin : LastWish::prevent;
  Trial trial;
  trial.takeAll(habits.beginning());
  while (!trial.violation() && static_cast<std::int64_t>(trial.lines().size()) < steps) {
    trial.takeAll(habits.next(trial.machine(), trial.application()));
  }
  day.lines = trial.lines();
  bringToGoodEnd(trial, day.lastWish);
  trial.end();
  day.stepCount = static_cast<std::int64_t>(trial.lines().size());
  day.eventCount = trial.eventCount();
  day.faultCounts = habits.faultCounts();
  day.rarePaths = trial.rarePaths();
  day.fingerprint = trial.fingerprint().value();
  day.violation = trial.violation();
  if (day.violation && day.violation->promise != liveness) {
    day.lines = trial.lines();
  }
  return day;
}

std::optional<Violation> repeatDay(const Day& day, const Lines& lines, Lines* all) {
  Trial trial;
  trial.takeAll(lines);
  if (day.violation && day.violation->promise == liveness) {
    bringToGoodEnd(trial, day.lastWish);
  }
  trial.end();
  if (all != nullptr) {
    *all = trial.lines();
  }
  return trial.violation();
}

}  // namespace orvane::desk::explore
