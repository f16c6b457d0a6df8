// Helpers that replace methods of GNUstep's classes and add properties to them.
#pragma once

#import <AppKit/AppKit.h>
#import <objc/runtime.h>

namespace orvane::gnustep {

/// Replaces an instance method by a block, and returns the old implementation. The block's first
/// parameter is the object. Aborts if the class has no such method.
IMP replaceMethod(Class type, SEL name, id block);
IMP replaceClassMethod(Class type, SEL name, id block);

/// Calls an implementation that replaceMethod has returned.
template <typename Result = void, typename... Arguments>
Result callReplaced(IMP method, id object, SEL name, Arguments... arguments) {
  auto* const function = reinterpret_cast<void (*)()>(method);
  return reinterpret_cast<Result (*)(id, SEL, Arguments...)>(function)(object, name, arguments...);
}

// Each is called once, when the shim is loaded.
void installRunLoop();
void installAppearance();
void installGraphics();
void installNotifications();
void installSurroundings();
void installViews();
void installWindows();
void installMenus();

}  // namespace orvane::gnustep

/// Properties of categories, stored as associated objects; `fetch` unboxes a number.
#define ORVANE_STORED_OBJECT(type, getter, setter, policy)            \
  -(type)getter {                                                     \
    return objc_getAssociatedObject(self, @selector(getter));         \
  }                                                                   \
  -(void)setter : (type)value {                                       \
    objc_setAssociatedObject(self, @selector(getter), value, policy); \
  }
#define ORVANE_STORED_NUMBER(type, getter, setter, fetch)                                 \
  -(type)getter {                                                                         \
    return static_cast<type>([objc_getAssociatedObject(self, @selector(getter)) fetch]);  \
  }                                                                                       \
  -(void)setter : (type)value {                                                           \
    objc_setAssociatedObject(self, @selector(getter), @(value), OBJC_ASSOCIATION_RETAIN); \
  }
