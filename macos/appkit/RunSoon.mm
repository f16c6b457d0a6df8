// A timer, because the run loop sleeps over a block of its own until something else wakes it, and
// the main queue waits for the end of a modal session that one of its tasks has begun.
#include "macos/appkit/RunSoon.hpp"

namespace orvane::appkit {

void runSoon(NSArray<NSRunLoopMode>* modes, void (^task)(void), double afterSeconds) {
  NSTimer* const timer = [NSTimer timerWithTimeInterval:afterSeconds
                                                repeats:NO
                                                  block:^(NSTimer*) {
                                                    task();
                                                  }];
  for (NSRunLoopMode mode in modes) {
    [NSRunLoop.mainRunLoop addTimer:timer forMode:mode];
  }
}

}  // namespace orvane::appkit
