// The machine's time follows the computer's monotonic clock.
#include "showroom/window/FramePump.hpp"

#include <algorithm>
#include <chrono>

#include "desk/machine/Clock.hpp"

namespace orvane::showroom {

namespace {

/// The maximum to catch up with after the computer slept.
constexpr std::int64_t maximumStep = 120 * desk::Clock::nanosecondsPerSecond;
constexpr std::int64_t nanosecondsPerMillisecond = 1'000'000;

}  // namespace

FramePump::FramePump(int framesPerSecond)
    : frameNanoseconds_(desk::Clock::nanosecondsPerSecond / std::max(framesPerSecond, 1)),
      last_(monotonicNanoseconds()),
      nextPicture_(last_),
      start_(last_) {}

std::int64_t FramePump::monotonicNanoseconds() {
  return std::chrono::duration_cast<std::chrono::nanoseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

void FramePump::advance(DeskSession& session) {
  const std::int64_t now = monotonicNanoseconds();
  session.advance(std::clamp<std::int64_t>(now - last_, 0, maximumStep));
  last_ = now;
}

bool FramePump::isTimeToDraw() const {
  return monotonicNanoseconds() >= nextPicture_;
}

void FramePump::beginPicture() {
  const std::int64_t now = monotonicNanoseconds();
  nextPicture_ = frameNanoseconds_ + (now - nextPicture_ < frameNanoseconds_ ? nextPicture_ : now);
}

void FramePump::endPicture() {
  shown_.push_back(static_cast<double>(monotonicNanoseconds() - start_) /
                   nanosecondsPerMillisecond);
}

int FramePump::millisecondsToWait(const DeskSession& session, bool isOutdated) const {
  const std::int64_t now = monotonicNanoseconds();
  const std::int64_t toFrame = std::max<std::int64_t>(nextPicture_ - now, 0);
  std::int64_t wait = toFrame;
  if (!isOutdated) {
    const std::int64_t toChange = session.nanosecondsToNextChange() - (now - last_);
    wait = std::max(toFrame, toChange);
  }
  // Rounded up, because waking too early means waking twice.
  return static_cast<int>((wait + nanosecondsPerMillisecond - 1) / nanosecondsPerMillisecond);
}

}  // namespace orvane::showroom
