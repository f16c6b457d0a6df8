// Notifications with NSNotificationCenter on the main operation queue, and distributed ones, which
// AppKit delivers on the main thread.
#include "Orvane/platform/appkit/NotificationCenter.hpp"

#import <AppKit/AppKit.h>

#include <utility>

/// Calls its block for each distributed notification.
@interface OrvaneDistributedObserver : NSObject {
 @public
  std::function<void()> _block;
}
- (void)receive:(nonnull NSNotification*)notification;
@end

@implementation OrvaneDistributedObserver

- (void)receive:(NSNotification*)notification {
  // The block may remove its own registration.
  const std::function<void()> running = _block;
  @autoreleasepool {
    running();
  }
}

@end

namespace orvane::appkit {

struct ObserverToken::Implementation {
  NSNotificationCenter* center;
  id<NSObject> observer;
};

namespace {

ObserverToken tokenOf(NSNotificationCenter* center, id<NSObject> observer) {
  return ObserverToken(std::make_shared<ObserverToken::Implementation>(
      ObserverToken::Implementation{center, observer}));
}

ObserverToken observeLocally(NSNotificationName name, std::function<void()> block) {
  NSNotificationCenter* const center = NSNotificationCenter.defaultCenter;
  return tokenOf(center, [center addObserverForName:name
                                             object:nil
                                              queue:NSOperationQueue.mainQueue
                                         usingBlock:^(NSNotification*) {
                                           block();
                                         }]);
}

ObserverToken observeDistributed(NSNotificationName name, std::function<void()> block) {
  OrvaneDistributedObserver* const observer = [[OrvaneDistributedObserver alloc] init];
  observer->_block = std::move(block);
  NSDistributedNotificationCenter* const center = NSDistributedNotificationCenter.defaultCenter;
  // Otherwise AppKit would hold back distributed notifications while another application is active.
  [center addObserver:observer
                selector:@selector(receive:)
                    name:name
                  object:nil
      suspensionBehavior:NSNotificationSuspensionBehaviorDeliverImmediately];
  return tokenOf(center, observer);
}

}  // namespace

ObserverToken NotificationCenter::addObserver(NotificationName name, std::function<void()> block) {
  switch (name) {
    case NotificationName::applicationDidChangeScreenParameters:
      return observeLocally(NSApplicationDidChangeScreenParametersNotification, std::move(block));
    case NotificationName::accessibilityPermissionsDidChange:
      return observeDistributed(@"com.apple.accessibility.api", std::move(block));
  }
}

void NotificationCenter::removeObserver(const ObserverToken& token) {
  ObserverToken::Implementation& implementation = token.implementation();
  if (implementation.observer != nil) {
    [implementation.center removeObserver:implementation.observer];
    implementation.observer = nil;
  }
}

}  // namespace orvane::appkit
