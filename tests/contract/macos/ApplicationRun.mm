// Launches the application once, and handles its events as its own event loop would.
#include "tests/contract/macos/ApplicationRun.hpp"

namespace orvane {

extern "C" void* objc_autoreleasePoolPush(void);
extern "C" void objc_autoreleasePoolPop(void* pool);

/// NSEventMaskAny, which GNUstep does not declare.
static constexpr NSEventMask anyEvent = NSUIntegerMax;

ApplicationRun::ApplicationRun() : pool_(objc_autoreleasePoolPush()) {
  static const bool isLaunched = [] {
    NSApplication* const application = NSApplication.sharedApplication;
    // A test shows no icon in the Dock and takes no focus from other applications.
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
    // Everything due by then runs, even if one task has used up the time.
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
