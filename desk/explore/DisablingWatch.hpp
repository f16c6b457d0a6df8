// DisablingWatch is the oracle for a tap that the system disables: the guard enables it at once,
// but not the fifth time within ten seconds. It shares no code with the application.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>

#include "desk/explore/Step.hpp"
#include "desk/explore/Violation.hpp"

namespace orvane::desk::explore {

class DisablingWatch {
 public:
  /// To be called after each step.
  [[nodiscard]] std::optional<Violation> check(const Step& step);

 private:
  // Times in nanoseconds by the machine's clock.
  /// Every disabling, with or without a notice.
  std::deque<std::int64_t> possible_;
  /// Those with a notice since the guard last started.
  std::deque<std::int64_t> certain_;
  std::optional<std::int64_t> disabledSince_;
};

}  // namespace orvane::desk::explore
