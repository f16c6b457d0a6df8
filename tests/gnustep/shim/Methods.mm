// Replaces methods of GNUstep's classes when the shim is loaded.
#include "tests/gnustep/shim/Methods.hpp"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

namespace orvane::gnustep {

IMP replaceMethod(Class type, SEL name, id block) {
  Method const old = class_getInstanceMethod(type, name);
  if (old == nullptr) {
    std::fprintf(stderr, "GNUstep has no -[%s %s]\n", class_getName(type), sel_getName(name));
    std::abort();
  }
  IMP const replaced = method_getImplementation(old);
  IMP const replacement = imp_implementationWithBlock(block);
  // An inherited method is overridden, so that other subclasses keep it.
  if (!class_addMethod(type, name, replacement, method_getTypeEncoding(old))) {
    method_setImplementation(class_getInstanceMethod(type, name), replacement);
  }
  return replaced;
}

IMP replaceClassMethod(Class type, SEL name, id block) {
  return replaceMethod(object_getClass(type), name, block);
}

namespace {

const void* imageOf(const void* address) {
  Dl_info place{};
  return dladdr(address, &place) != 0 ? place.dli_fbase : nullptr;
}

/// If a category of the shim and the class itself define the same method, it is undefined which one
/// is used. Makes the shim's implementation win.
void preferCategories(Class type) {
  unsigned count = 0;
  Method* const methods = class_copyMethodList(type, &count);
  for (unsigned index = 0; index < count; ++index) {
    IMP const own = method_getImplementation(methods[index]);
    if (imageOf(reinterpret_cast<const void*>(own)) !=
        imageOf(reinterpret_cast<const void*>(&preferCategories))) {
      continue;
    }
    for (unsigned other = 0; other < count; ++other) {
      if (sel_isEqual(method_getName(methods[other]), method_getName(methods[index]))) {
        method_setImplementation(methods[other], own);
      }
    }
  }
  std::free(methods);
}

__attribute__((constructor)) void install() {
  @autoreleasepool {
    for (Class type in @[
           NSAccessibilityElement.class,
           NSAppearance.class,
           NSApplication.class,
           NSButton.class,
           NSColor.class,
           NSColorSpace.class,
           NSEvent.class,
           NSFont.class,
           NSImage.class,
           NSLocale.class,
           NSMenu.class,
           NSMenuItem.class,
           NSRunLoop.class,
           NSScreen.class,
           NSStatusItem.class,
           NSTimer.class,
           NSURL.class,
           NSView.class,
           NSWindow.class,
           NSWorkspace.class
         ]) {
      preferCategories(type);
      preferCategories(object_getClass(type));
    }
    // Windows without a window manager, drawn by cairo, and no icon window.
    [NSUserDefaults.standardUserDefaults registerDefaults:@{
      @"GSBackend" : @"libgnustep-cairo",
      @"GSBackHandlesWindowDecorations" : @NO,
      @"GSSuppressAppIcon" : @YES,
    }];
    installRunLoop();
    installAppearance();
    installGraphics();
    installNotifications();
    installSurroundings();
    installViews();
    installWindows();
    installMenus();
  }
}

}  // namespace
}  // namespace orvane::gnustep
