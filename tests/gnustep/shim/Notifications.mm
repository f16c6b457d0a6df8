// Block observers that are notified in order of registration; GNUstep uses the reverse order.
#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "tests/gnustep/shim/Methods.hpp"

@interface OrvaneShimObserver : NSObject {
 @public
  void (^_block)(NSNotification* notification);
}
@end
@implementation OrvaneShimObserver
@end

namespace orvane::gnustep {
namespace {

using Observers = std::vector<OrvaneShimObserver*>;

/// By notification name.
std::map<std::string, Observers>& observers() {
  static auto* const all = new std::map<std::string, Observers>;
  return *all;
}

/// Skips observers that are removed before their turn.
void notify(NSNotification* notification) {
  const std::string name = notification.name.UTF8String;
  for (OrvaneShimObserver* observer : Observers(observers()[name])) {
    if (std::ranges::count(observers()[name], observer) > 0) {
      observer->_block(notification);
    }
  }
}

}  // namespace

void installNotifications() {
  static const SEL add = @selector(addObserverForName:object:queue:usingBlock:);
  static IMP const addObserver =
      replaceMethod(NSNotificationCenter.class, add,
                    ^id(NSNotificationCenter* center, NSString* name, id object, NSOperationQueue*,
                        void (^block)(NSNotification*)) {
                      const auto [known, isFirst] = observers().try_emplace(name.UTF8String);
                      if (isFirst) {
                        callReplaced<id, id, id, id, id>(addObserver, center, add, name, object,
                                                         nil, ^(NSNotification* notification) {
                                                           notify(notification);
                                                         });
                      }
                      OrvaneShimObserver* const observer = [[OrvaneShimObserver alloc] init];
                      observer->_block = [block copy];
                      known->second.push_back(observer);
                      return observer;
                    });
  static IMP const removeObserver = replaceMethod(
      NSNotificationCenter.class, @selector(removeObserver:),
      ^(NSNotificationCenter* center, id observer) {
        for (auto& [name, known] : observers()) {
          std::erase(known, observer);
        }
        callReplaced<void, id>(removeObserver, center, @selector(removeObserver:), observer);
      });
}

}  // namespace orvane::gnustep
