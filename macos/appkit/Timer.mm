// Repeating timers by NSTimer on the main run loop.
#include "Orvane/platform/appkit/Timer.hpp"

#import <Foundation/Foundation.h>

#include <cmath>
#include <utility>

namespace orvane::appkit {

struct Timer::Implementation {
  explicit Implementation(NSTimer* started) : timer(started) {}
  Implementation(const Implementation&) = delete;
  Implementation& operator=(const Implementation&) = delete;
  // The run loop keeps the timer, and the timer its block, until it is invalidated.
  ~Implementation() { [timer invalidate]; }

  NSTimer* timer;
};

namespace {

NSHashTable<NSTimer*>* liveTimers() {
  static NSHashTable<NSTimer*>* const timers = [NSHashTable weakObjectsHashTable];
  return timers;
}

/// The next beat of a live timer of this interval, also of one that is late; without one, an
/// interval from now.
NSDate* firstFireDate(NSTimeInterval interval) {
  for (NSTimer* timer in liveTimers()) {
    if (timer.valid && timer.timeInterval == interval) {
      const NSTimeInterval late = -timer.fireDate.timeIntervalSinceNow;
      const double missedBeats = late < 0 ? 0 : std::floor(late / interval) + 1;
      return [timer.fireDate dateByAddingTimeInterval:missedBeats * interval];
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
                                                       // A tick may end its own timer. At rest
                                                       // no event comes to empty a pool.
                                                       const std::function<void()> running = tick;
                                                       @autoreleasepool {
                                                         running();
                                                       }
                                                     }];
  [liveTimers() addObject:timer];
  // What the header advises for repeating timers: the Mac may wake up for several at once. Later
  // ticks keep to the original grid.
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
