// The entry of the application on a Mac: it hands over to a copy that runs already, or runs.
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
    // Ends with the process.
    [application run];
  }
}
