// RunawayWatch is the oracle for the guard's shut-off when its blocks run away: 180 within two
// seconds. It shares no code with the application.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>

#include "desk/explore/Violation.hpp"

namespace orvane::desk::explore {

class RunawayWatch {
 public:
  void beginStep() { certain_.clear(); }
  /// To be called for every event that the guard has moved back, at `now` in nanoseconds by the
  /// machine's clock. `hasShutOff` says whether the guard has disabled its tap with it.
  [[nodiscard]] std::optional<Violation> noteBlock(std::int64_t now, bool hasShutOff);

 private:
  /// Times of all recent blocks. A stop of the guard between two steps makes it forget them.
  std::deque<std::int64_t> possible_;
  /// Those of this step.
  std::deque<std::int64_t> certain_;
};

}  // namespace orvane::desk::explore
