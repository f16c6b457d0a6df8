// Notifications by NSNotificationCenter, delivered on the main operation queue.
#include "Orvane/platform/appkit/NotificationCenter.hpp"

#import <AppKit/AppKit.h>

namespace orvane::appkit {

struct ObserverToken::Implementation {
  id<NSObject> observer;
};

namespace {

NSNotificationName platformName(NotificationName name) {
  switch (name) {
    case NotificationName::applicationDidChangeScreenParameters:
      return NSApplicationDidChangeScreenParametersNotification;
  }
}

}  // namespace

ObserverToken NotificationCenter::addObserver(NotificationName name, std::function<void()> block) {
  const id<NSObject> observer =
      [NSNotificationCenter.defaultCenter addObserverForName:platformName(name)
                                                      object:nil
                                                       queue:NSOperationQueue.mainQueue
                                                  usingBlock:^(NSNotification*) {
                                                    block();
                                                  }];
  return ObserverToken(
      std::make_shared<ObserverToken::Implementation>(ObserverToken::Implementation{observer}));
}

void NotificationCenter::removeObserver(const ObserverToken& token) {
  ObserverToken::Implementation& implementation = token.implementation();
  if (implementation.observer != nil) {
    [NSNotificationCenter.defaultCenter removeObserver:implementation.observer];
    implementation.observer = nil;
  }
}

}  // namespace orvane::appkit
