// The entry of the application on a Mac: it brings back the lock of the last run and hands over to
// the run loop.
#import <AppKit/AppKit.h>

#include "Orvane/app/OrvaneAppState.hpp"
#include "Orvane/platform/appkit/Application.hpp"

using orvane::appkit::Application;

int main() {
  @autoreleasepool {
    Application::setDelegate({
        .didFinishLaunching =
            [] {
              Application::setActivationPolicy(orvane::appkit::ActivationPolicy::accessory);
              orvane::OrvaneAppState::model().restoreLockIfNeeded();
            },
        .shouldHandleReopen = {},
        .willTerminate = {},
    });
    [NSApplication.sharedApplication run];
  }
}
