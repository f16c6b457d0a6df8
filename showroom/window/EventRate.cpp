// Keeps the batches of the last second only.
#include "showroom/window/EventRate.hpp"

#include "desk/machine/Clock.hpp"

namespace orvane::showroom {

void EventRate::note(std::int64_t moment, std::int64_t count) {
  while (!batches_.empty() &&
         batches_.front().moment <= moment - desk::Clock::nanosecondsPerSecond) {
    batches_.pop_front();
  }
  if (count > 0) {
    batches_.push_back({moment, count});
  }
}

std::int64_t EventRate::perSecond(std::int64_t now) const {
  std::int64_t sum = 0;
  for (const Batch& batch : batches_) {
    if (batch.moment > now - desk::Clock::nanosecondsPerSecond) {
      sum += batch.count;
    }
  }
  return sum;
}

std::int64_t EventRate::nextChangeAt() const {
  return batches_.empty() ? -1 : batches_.back().moment + desk::Clock::nanosecondsPerSecond;
}

}  // namespace orvane::showroom
