// Launches the application once, and serves its events as its own loop would.
#include "tests/contract/macos/ApplicationRun.hpp"

namespace orvane {

extern "C" void* objc_autoreleasePoolPush(void);
extern "C" void objc_autoreleasePoolPop(void* pool);

/// NSEventMaskAny, whose name GNUstep does not know.
static constexpr NSEventMask anyEvent = NSUIntegerMax;

ApplicationRun::ApplicationRun() : pool_(objc_autoreleasePoolPush()) {
  static const bool isLaunched = [] {
    NSApplication* const application = NSApplication.sharedApplication;
    // Neither an icon in the Dock nor another application's focus is taken for a test.
    [application setActivationPolicy:NSApplicationActivationPolicyAccessory];
    [application finishLaunching];
    return true;
  }();
  (void)isLaunched;
}

ApplicationRun::~ApplicationRun() {
  objc_autoreleasePoolPop(pool_);
}

void ApplicationRun::serve(double seconds, NSString* mode) {
  @autoreleasepool {
    NSDate* const end = [NSDate dateWithTimeIntervalSinceNow:seconds];
    // What is due by then is served, even when one task has taken all of the time.
    bool goesOn = true;
    while (goesOn) {
      @autoreleasepool {
        NSEvent* const event =
            [NSApp nextEventMatchingMask:anyEvent
                               untilDate:[NSDate dateWithTimeIntervalSinceNow:0.001]
                                  inMode:mode
                                 dequeue:YES];
        if (event != nil) {
          [NSApp sendEvent:event];
        }
        goesOn = event != nil || end.timeIntervalSinceNow > 0;
      }
    }
  }
  objc_autoreleasePoolPop(pool_);
  pool_ = objc_autoreleasePoolPush();
}

}  // namespace orvane
