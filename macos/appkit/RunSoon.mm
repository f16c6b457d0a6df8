// Uses a timer: a block performed by the run loop does not wake it, and the main queue is suspended
// during a modal session that one of its tasks has begun.
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
