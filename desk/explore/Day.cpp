// Random lines, then the liveness check.
#include "desk/explore/Day.hpp"

#include "desk/explore/ActionGenerator.hpp"
#include "desk/explore/Random.hpp"

namespace orvane::desk::explore {

Day simulateDay(std::uint64_t seed, std::int64_t steps) {
  Random random{seed};
  ActionGenerator actions(random);
  Day day;
  day.seed = seed;
  day.finalMode = random.chance(500) ? FinalMode::pin : FinalMode::prevent;
  CheckedSession session;
  session.runAll(actions.beginning());
  while (!session.violation() && static_cast<std::int64_t>(session.lines().size()) < steps) {
    session.runAll(actions.next(session.machine(), session.application()));
  }
  day.lines = session.lines();
  checkLiveness(session, day.finalMode);
  session.end();
  day.stepCount = static_cast<std::int64_t>(session.lines().size());
  day.eventCount = session.eventCount();
  day.faultCounts = actions.faultCounts();
  day.rarePaths = session.rarePaths();
  day.fingerprint = session.fingerprint().value();
  day.violation = session.violation();
  if (day.violation && day.violation->invariant != liveness) {
    day.lines = session.lines();
  }
  return day;
}

std::optional<Violation> replayDay(const Day& day, const Lines& lines, Lines* all) {
  CheckedSession session;
  session.runAll(lines);
  if (day.violation && day.violation->invariant == liveness) {
    checkLiveness(session, day.finalMode);
  }
  session.end();
  if (all != nullptr) {
    *all = session.lines();
  }
  return session.violation();
}

}  // namespace orvane::desk::explore
