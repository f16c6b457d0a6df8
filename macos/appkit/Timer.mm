// Repeating timers with NSTimer on the main run loop.
#include "Orvane/platform/appkit/Timer.hpp"

#import <Foundation/Foundation.h>

#include <cmath>
#include <utility>

namespace orvane::appkit {

struct Timer::Implementation {
  explicit Implementation(NSTimer* started) : timer(started) {}
  Implementation(const Implementation&) = delete;
  Implementation& operator=(const Implementation&) = delete;
  // Until it is invalidated, the run loop retains the timer, and the timer its block.
  ~Implementation() { [timer invalidate]; }

  NSTimer* timer;
};

namespace {

NSHashTable<NSTimer*>* liveTimers() {
  static NSHashTable<NSTimer*>* const timers = [NSHashTable weakObjectsHashTable];
  return timers;
}

/// The next fire date of a live timer with this interval, even of an overdue one; without one, an
/// interval from now.
NSDate* firstFireDate(NSTimeInterval interval) {
  for (NSTimer* timer in liveTimers()) {
    if (timer.valid && timer.timeInterval == interval) {
      const NSTimeInterval late = -timer.fireDate.timeIntervalSinceNow;
      const double missedTicks = late < 0 ? 0 : std::floor(late / interval) + 1;
      return [timer.fireDate dateByAddingTimeInterval:missedTicks * interval];
    }
  }
  return [NSDate dateWithTimeIntervalSinceNow:interval];
}

}  // namespace

Timer Timer::repeating(double intervalSeconds, RunLoopMode mode, std::function<void()> tick) {
  NSTimer* const timer = [[NSTimer alloc] initWithFireDate:firstFireDate(intervalSeconds)
                                                  interval:intervalSeconds
                                                   repeats:YES
                                                     block:^(NSTimer*) {
                                                       // A tick may end its own timer. While idle,
                                                       // no event drains a pool.
                                                       const std::function<void()> running = tick;
                                                       @autoreleasepool {
                                                         running();
                                                       }
                                                     }];
  [liveTimers() addObject:timer];
  // The header's advice for repeating timers, so that the Mac may coalesce wake-ups. Later ticks
  // keep to the original grid.
  timer.tolerance = intervalSeconds * 0.1;
  [NSRunLoop.mainRunLoop
      addTimer:timer
       forMode:mode == RunLoopMode::common ? NSRunLoopCommonModes : NSDefaultRunLoopMode];
  return Timer(std::make_unique<Implementation>(timer));
}

Timer::Timer(std::unique_ptr<Implementation> implementation)
    : implementation_(std::move(implementation)) {}
Timer::Timer(Timer&&) noexcept = default;
Timer& Timer::operator=(Timer&&) noexcept = default;
Timer::~Timer() = default;

void Timer::invalidate() {
  [implementation_->timer invalidate];
}

bool Timer::isValid() const {
  return implementation_ != nullptr && implementation_->timer.valid;
}

}  // namespace orvane::appkit
