// Keeps a session to one copy of the application. Copies communicate by distributed notifications.
#include "macos/handover/Handover.hpp"

#import <AppKit/AppKit.h>

#include <vector>

#include "macos/handover/RunningCopy.hpp"

/// Receives the requests of later copies; lives as long as the process.
@interface OrvaneHandoverObserver : NSObject
- (void)laterCopyAsks:(nonnull NSNotification*)notification;
@end

@implementation OrvaneHandoverObserver

- (void)laterCopyAsks:(NSNotification*)notification {
  NSApplication* const application = NSApplication.sharedApplication;
  id<NSApplicationDelegate> const delegate = application.delegate;
  if ([delegate respondsToSelector:@selector(applicationShouldHandleReopen:hasVisibleWindows:)]) {
    [delegate applicationShouldHandleReopen:application hasVisibleWindows:NO];
  }
}

@end

namespace orvane {
namespace {

/// Nil for an executable without a bundle, which has no other copies.
NSString* requestName() {
  return [NSBundle.mainBundle.bundleIdentifier stringByAppendingString:@".show"];
}

RunningCopy copyFrom(NSRunningApplication* application) {
  NSDate* const launched = application.launchDate;
  return {application.processIdentifier, static_cast<bool>(application.finishedLaunching),
          launched == nil ? std::nullopt
                          : std::optional<double>(launched.timeIntervalSinceReferenceDate)};
}

/// From macOS 14 on, an application comes forward only if the one that the user has just opened
/// yields activation to it.
void letComeForward(NSRunningApplication* application) {
  if (@available(macOS 14, *)) {
    [NSApplication.sharedApplication yieldActivationToApplication:application];
  }
}

}  // namespace

bool handOverToRunningCopy() {
  NSString* const identifier = NSBundle.mainBundle.bundleIdentifier;
  if (identifier == nil) {
    return false;
  }
  NSRunningApplication* const current = NSRunningApplication.currentApplication;
  std::vector<RunningCopy> copies{copyFrom(current)};
  NSArray* const running =
      [NSRunningApplication runningApplicationsWithBundleIdentifier:identifier];
  for (NSRunningApplication* other in running) {
    if (!other.terminated && ![other isEqual:current]) {
      copies.push_back(copyFrom(other));
    }
  }
  const auto stays = copyThatStays(copies);
  if (!stays || *stays == copies.front()) {
    return false;
  }
  for (NSRunningApplication* other in running) {
    if (other.processIdentifier == stays->processID) {
      letComeForward(other);
    }
  }
  [NSDistributedNotificationCenter.defaultCenter postNotificationName:requestName()
                                                               object:nil
                                                             userInfo:nil
                                                   deliverImmediately:YES];
  return true;
}

void answerLaterCopies() {
  static OrvaneHandoverObserver* const observer = [[OrvaneHandoverObserver alloc] init];
  if (requestName() != nil) {
    [NSDistributedNotificationCenter.defaultCenter
               addObserver:observer
                  selector:@selector(laterCopyAsks:)
                      name:requestName()
                    object:nil
        suspensionBehavior:NSNotificationSuspensionBehaviorDeliverImmediately];
  }
}

}  // namespace orvane
