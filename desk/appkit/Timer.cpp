// Timers on the desk, which belong to the machine's run loop.
#include "Orvane/platform/appkit/Timer.hpp"

#include <utility>

#include "desk/machine/Machine.hpp"

namespace orvane::appkit {

struct Timer::Implementation {
  std::shared_ptr<desk::RunLoopTimer> timer;
};

Timer Timer::repeating(double intervalSeconds, RunLoopMode mode, std::function<void()> tick) {
  desk::recordCall("Timer.repeating", {intervalSeconds, mode == RunLoopMode::common});
  const desk::RunLoop::ModeSet modes =
      mode == RunLoopMode::common
          ? desk::RunLoop::commonModes
          : static_cast<desk::RunLoop::ModeSet>(desk::RunLoop::Mode::standard);
  auto timer = desk::Machine::current().runLoop.addCoalescedTimer(
      desk::Clock::fromSeconds(intervalSeconds), modes, std::move(tick));
  return Timer(std::make_unique<Implementation>(Implementation{std::move(timer)}));
}

Timer::Timer(std::unique_ptr<Implementation> implementation)
    : implementation_(std::move(implementation)) {}

Timer::Timer(Timer&&) noexcept = default;

Timer& Timer::operator=(Timer&& other) noexcept {
  if (this != &other) {
    invalidate();
    implementation_ = std::move(other.implementation_);
  }
  return *this;
}

Timer::~Timer() {
  invalidate();
}

void Timer::invalidate() {
  if (isValid()) {
    desk::Machine::current().runLoop.invalidateTimer(implementation_->timer);
  }
}

bool Timer::isValid() const {
  // A timer whose process, and perhaps machine, has ended is not valid.
  return implementation_ != nullptr && implementation_->timer->isValid;
}

}  // namespace orvane::appkit
