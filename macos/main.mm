// The application's entry point on a Mac: hands over to a running copy, or runs.
#import <AppKit/AppKit.h>

#include "Orvane/app/OrvaneApp.hpp"
#include "macos/handover/Handover.hpp"

int main() {
  @autoreleasepool {
    NSApplication* const application = NSApplication.sharedApplication;
    if (orvane::handOverToRunningCopy()) {
      return 0;
    }
    orvane::answerLaterCopies();
    orvane::OrvaneApp::install();
    // Does not return: it ends with the process.
    [application run];
  }
}
