// Methods of GNUstep's classes that the shim replaces, and properties that it adds to them.
#pragma once

#import <AppKit/AppKit.h>
#import <objc/runtime.h>

namespace orvane::gnustep {

/// Puts a block in the place of an instance method, and returns what was there. The block's first
/// parameter is the object. Ends the process when the class has no such method.
IMP replaceMethod(Class type, SEL name, id block);
IMP replaceClassMethod(Class type, SEL name, id block);

/// Calls what replaceMethod returned.
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

/// An object, or a number fetched by `fetch`, that a category keeps with its object.
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
