// The machine follows the monotonic clock of the computer.
#include "showroom/window/FramePump.hpp"

#include <algorithm>
#include <chrono>

#include "desk/machine/Clock.hpp"

namespace orvane::showroom {

namespace {

/// After the computer slept the machine does not have to catch up with more than this.
constexpr std::int64_t longestStep = 120 * desk::Clock::nanosecondsPerSecond;
constexpr std::int64_t nanosecondsPerMillisecond = 1'000'000;

}  // namespace

FramePump::FramePump(int framesPerSecond)
    : frameNanoseconds_(desk::Clock::nanosecondsPerSecond / std::max(framesPerSecond, 1)),
      last_(wallNanoseconds()),
      nextPicture_(last_),
      start_(last_) {}

std::int64_t FramePump::wallNanoseconds() {
  return std::chrono::duration_cast<std::chrono::nanoseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

void FramePump::advance(DeskSession& session) {
  const std::int64_t now = wallNanoseconds();
  session.advance(std::clamp<std::int64_t>(now - last_, 0, longestStep));
  last_ = now;
}

bool FramePump::isTimeToDraw() const {
  return wallNanoseconds() >= nextPicture_;
}

void FramePump::beginPicture() {
  const std::int64_t now = wallNanoseconds();
  nextPicture_ = frameNanoseconds_ + (now - nextPicture_ < frameNanoseconds_ ? nextPicture_ : now);
}

void FramePump::endPicture() {
  shown_.push_back(static_cast<double>(wallNanoseconds() - start_) / nanosecondsPerMillisecond);
}

int FramePump::millisecondsToWait(const DeskSession& session, bool isOutdated) const {
  const std::int64_t now = wallNanoseconds();
  const std::int64_t toFrame = std::max<std::int64_t>(nextPicture_ - now, 0);
  std::int64_t wait = toFrame;
  if (!isOutdated) {
    const std::int64_t toChange = session.nanosecondsToNextChange() - (now - last_);
    wait = std::max(toFrame, toChange);
  }
  // Rounded up, lest it wakes just too early and then again.
  return static_cast<int>((wait + nanosecondsPerMillisecond - 1) / nanosecondsPerMillisecond);
}

}  // namespace orvane::showroom
