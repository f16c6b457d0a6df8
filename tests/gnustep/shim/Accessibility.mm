// The protocol of accessibility elements, which GNUstep lacks, and a record of the accessibility
// notifications.
#include "tests/gnustep/shim/Methods.hpp"
#include "tests/gnustep/shim/World.hpp"

@interface OrvaneShimWeakReference : NSObject {
 @public
  __weak id _object;
}
@end
@implementation OrvaneShimWeakReference
@end

namespace {

const char parentKey = 0;

}  // namespace

@implementation NSAccessibilityElement (OrvaneShim)

ORVANE_STORED_OBJECT(NSString*, accessibilityRole, setAccessibilityRole, OBJC_ASSOCIATION_COPY)
ORVANE_STORED_OBJECT(NSString*, accessibilitySubrole, setAccessibilitySubrole,
                     OBJC_ASSOCIATION_COPY)
ORVANE_STORED_OBJECT(NSString*, accessibilityLabel, setAccessibilityLabel, OBJC_ASSOCIATION_COPY)
ORVANE_STORED_OBJECT(id, accessibilityValue, setAccessibilityValue, OBJC_ASSOCIATION_RETAIN)
ORVANE_STORED_OBJECT(NSArray*, accessibilityChildren, setAccessibilityChildren,
                     OBJC_ASSOCIATION_COPY)
ORVANE_STORED_NUMBER(BOOL, isAccessibilityEnabled, setAccessibilityEnabled, boolValue)
ORVANE_STORED_NUMBER(BOOL, isAccessibilitySelected, setAccessibilitySelected, boolValue)

- (id)accessibilityParent {
  const OrvaneShimWeakReference* const reference = objc_getAssociatedObject(self, &parentKey);
  return reference == nil ? nil : reference->_object;
}

- (void)setAccessibilityParent:(id)parent {
  OrvaneShimWeakReference* const reference = [[OrvaneShimWeakReference alloc] init];
  reference->_object = parent;
  objc_setAssociatedObject(self, &parentKey, reference, OBJC_ASSOCIATION_RETAIN);
}

- (NSRect)accessibilityFrame {
  return NSZeroRect;
}

- (BOOL)isAccessibilitySelectorAllowed:(SEL)selector {
  return [self respondsToSelector:selector];
}

@end

/// A view is an element if it says so; windows and other objects always are.
extern "C" id NSAccessibilityUnignoredAncestor(id element) {
  id each = element;
  while ([each isKindOfClass:NSView.class]) {
    NSView* const view = each;
    if (view.isAccessibilityElement) {
      break;
    }
    each = view.superview == nil ? static_cast<id>(view.window) : view.superview;
  }
  return each;
}

NSRect NSAccessibilityFrameInView(NSView* view, NSRect frame) {
  return [view.window convertRectToScreen:[view convertRect:frame toView:nil]];
}

extern "C" void NSAccessibilityPostNotificationWithUserInfo(id element, NSString* notification,
                                                            NSDictionary* info) {
  NSCAssert(element != nil, @"a notification without an element");
  NSString* const text = info[NSAccessibilityAnnouncementKey];
  orvane::gnustep::world().announcements.push_back(
      [NSString stringWithFormat:@"%@|%@", notification, text == nil ? @"" : text].UTF8String);
}

extern "C" void NSAccessibilityPostNotification(id element, NSString* notification) {
  NSAccessibilityPostNotificationWithUserInfo(element, notification, nil);
}
