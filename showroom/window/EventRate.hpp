// EventRate counts the events of the last second of the machine's time.
#pragma once

#include <cstdint>
#include <deque>

namespace orvane::showroom {

/// All times are nanoseconds of the machine's clock.
class EventRate {
 public:
  /// Adds an event; `now` must not decrease.
  void add(std::int64_t now);
  /// The number of events in the second before `now`.
  [[nodiscard]] std::int64_t perSecond(std::int64_t now) const;
  /// When the rate becomes zero without further events; negative if it is zero for good.
  [[nodiscard]] std::int64_t nextChangeAt() const;

 private:
  std::deque<std::int64_t> times_;
};

}  // namespace orvane::showroom
