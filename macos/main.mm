// The entry of the application on a Mac: it installs the delegate and hands over to the run loop.
#import <AppKit/AppKit.h>

#include "Orvane/app/OrvaneApp.hpp"

int main() {
  @autoreleasepool {
    orvane::OrvaneApp::install();
    [NSApplication.sharedApplication run];
  }
}
