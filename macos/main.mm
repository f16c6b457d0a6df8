// The entry of the application on a Mac: unless a copy of it runs already, it installs the delegate
// and the watch over the event tap, and hands over to the run loop.
#import <AppKit/AppKit.h>

#include "Orvane/app/OrvaneApp.hpp"
#include "Orvane/app/OrvaneAppState.hpp"
#include "Orvane/model/TapWatch.hpp"
#include "macos/handover/Handover.hpp"

int main() {
  @autoreleasepool {
    NSApplication* const application = NSApplication.sharedApplication;
    if (orvane::handOverToRunningCopy()) {
      return 0;
    }
    orvane::answerLaterCopies();
    orvane::OrvaneApp::install();
    const orvane::TapWatch tapWatch(orvane::OrvaneAppState::model);
    // Every movement of the pointer waits for this process, which has no window most of the time.
    // App Nap would slow it down.
    NS_VALID_UNTIL_END_OF_SCOPE const id<NSObject> activity = [NSProcessInfo.processInfo
        beginActivityWithOptions:NSActivityUserInitiatedAllowingIdleSystemSleep
                          reason:@"Moves the pointer away from the Dock's edge"];
    (void)activity;
    // Ends with the process.
    [application run];
  }
}
