// Keeps the times of the last second only.
#include "showroom/window/EventRate.hpp"

#include <algorithm>

#include "desk/machine/Clock.hpp"

namespace orvane::showroom {

void EventRate::add(std::int64_t now) {
  while (!times_.empty() && times_.front() <= now - desk::Clock::nanosecondsPerSecond) {
    times_.pop_front();
  }
  times_.push_back(now);
}

std::int64_t EventRate::perSecond(std::int64_t now) const {
  return std::ranges::count_if(
      times_, [now](std::int64_t time) { return time > now - desk::Clock::nanosecondsPerSecond; });
}

std::int64_t EventRate::nextChangeAt() const {
  return times_.empty() ? -1 : times_.back() + desk::Clock::nanosecondsPerSecond;
}

}  // namespace orvane::showroom
