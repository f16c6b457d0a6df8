// Windows as in AppKit, where GNUstep's differ.
#include <initializer_list>

#include "tests/gnustep/shim/Methods.hpp"

namespace {

const char styleMaskKey = 0;
const char behaviorKey = 0;
const char preventsTerminationKey = 0;

}  // namespace

@implementation NSWindow (OrvaneShim)

ORVANE_STORED_OBJECT(NSString*, identifier, setIdentifier, OBJC_ASSOCIATION_COPY)
ORVANE_STORED_NUMBER(NSWindowTitleVisibility, titleVisibility, setTitleVisibility, integerValue)
ORVANE_STORED_NUMBER(BOOL, titlebarAppearsTransparent, setTitlebarAppearsTransparent, boolValue)

- (BOOL)preventsApplicationTerminationWhenModal {
  NSNumber* const prevents = objc_getAssociatedObject(self, &preventsTerminationKey);
  return prevents == nil || prevents.boolValue;
}
- (void)setPreventsApplicationTerminationWhenModal:(BOOL)prevents {
  objc_setAssociatedObject(self, &preventsTerminationKey, @(prevents), OBJC_ASSOCIATION_RETAIN);
}

- (void)performWindowDragWithEvent:(NSEvent*)event {
  const NSPoint start = event.locationInWindow;
  NSEvent* next = event;
  while (next.type != NSLeftMouseUp) {
    next = [NSApp nextEventMatchingMask:NSLeftMouseDraggedMask | NSLeftMouseUpMask
                              untilDate:NSDate.distantFuture
                                 inMode:NSEventTrackingRunLoopMode
                                dequeue:YES];
    const NSPoint origin = self.frame.origin;
    [self setFrameOrigin:NSMakePoint(origin.x + next.locationInWindow.x - start.x,
                                     origin.y + next.locationInWindow.y - start.y)];
  }
}

@end

@implementation NSButton (OrvaneShim)
ORVANE_STORED_OBJECT(id, accessibilityValue, setAccessibilityValue, OBJC_ASSOCIATION_RETAIN)
- (NSImageScaling)imageScaling {
  return [self.cell imageScaling];
}
- (void)setImageScaling:(NSImageScaling)scaling {
  [self.cell setImageScaling:scaling];
}
@end

namespace orvane::gnustep {
namespace {

/// AppKit gives a title bar to titled windows only, and lays it over full-size content; GNUstep
/// gives one to closable and miniaturisable windows, too.
NSUInteger decorated(NSUInteger mask) {
  constexpr NSUInteger decorations = 0xF;
  constexpr NSUInteger fullSizeContentView = 1 << 15;
  const bool hasTitleBar = (mask & NSTitledWindowMask) != 0 && (mask & fullSizeContentView) == 0;
  return hasTitleBar ? mask : mask & ~decorations;
}

void installDecorations() {
  static const SEL offsets = @selector(offsets:: ::forStyleMask:);
  for (Class decoration : {NSClassFromString(@"GSWindowDecorationView"),
                           NSClassFromString(@"GSStandardWindowDecorationView")}) {
    IMP* const replaced = new IMP;
    *replaced = replaceClassMethod(
        decoration, offsets,
        ^(Class type, float* left, float* right, float* top, float* bottom, NSUInteger mask) {
          callReplaced<void, float*, float*, float*, float*, NSUInteger>(
              *replaced, type, offsets, left, right, top, bottom, decorated(mask));
        });
  }
  static IMP const draw =
      replaceMethod(NSClassFromString(@"GSStandardWindowDecorationView"), @selector(drawRect:),
                    ^(NSView* view, NSRect dirty) {
                      const NSUInteger mask = view.window.styleMask;
                      if (decorated(mask) == mask) {
                        callReplaced<void, NSRect>(draw, view, @selector(drawRect:), dirty);
                      }
                    });
}

}  // namespace

void installWindows() {
  installDecorations();
  static IMP const terminate = replaceMethod(
      NSApplication.class, @selector(terminate:), ^(NSApplication* application, id sender) {
        if (!application.modalWindow.preventsApplicationTerminationWhenModal) {
          callReplaced<void, id>(terminate, application, @selector(terminate:), sender);
        }
      });
  // Stores the complete mask; GNUstep receives the part that it supports.
  static const SEL initialise = @selector(initWithContentRect:styleMask:backing:defer:);
  static IMP const init = replaceMethod(
      NSWindow.class, initialise,
      ^id(NSWindow* window, NSRect content, NSUInteger mask, NSBackingStoreType backing,
          BOOL defer) {
        NSWindow* const made = callReplaced<id, NSRect, NSUInteger, NSBackingStoreType, BOOL>(
            init, window, initialise, content, decorated(mask), backing, defer);
        objc_setAssociatedObject(made, &styleMaskKey, @(mask), OBJC_ASSOCIATION_RETAIN);
        return made;
      });
  static IMP const styleMask =
      replaceMethod(NSWindow.class, @selector(styleMask), ^NSUInteger(NSWindow* window) {
        NSNumber* const mask = objc_getAssociatedObject(window, &styleMaskKey);
        return mask == nil ? callReplaced<NSUInteger>(styleMask, window, @selector(styleMask))
                           : mask.unsignedIntegerValue;
      });
  replaceMethod(NSWindow.class, @selector(collectionBehavior), ^NSUInteger(NSWindow* window) {
    return [objc_getAssociatedObject(window, &behaviorKey) unsignedIntegerValue];
  });
  replaceMethod(
      NSWindow.class, @selector(setCollectionBehavior:), ^(NSWindow* window, NSUInteger behavior) {
        objc_setAssociatedObject(window, &behaviorKey, @(behavior), OBJC_ASSOCIATION_RETAIN);
      });
  static IMP const setFloating = replaceMethod(
      NSPanel.class, @selector(setFloatingPanel:), ^(NSPanel* panel, BOOL isFloating) {
        callReplaced<void, BOOL>(setFloating, panel, @selector(setFloatingPanel:), isFloating);
        // GNUstep uses another value.
        constexpr NSInteger floatingLevel = 3;
        panel.level = isFloating ? floatingLevel : NSNormalWindowLevel;
      });
  // Child windows move with their parent.
  static IMP const setOrigin = replaceMethod(
      NSWindow.class, @selector(setFrameOrigin:), ^(NSWindow* window, NSPoint origin) {
        const NSPoint before = window.frame.origin;
        callReplaced<void, NSPoint>(setOrigin, window, @selector(setFrameOrigin:), origin);
        for (NSWindow* child in window.childWindows) {
          const NSPoint place = child.frame.origin;
          [child setFrameOrigin:NSMakePoint(place.x + origin.x - before.x,
                                            place.y + origin.y - before.y)];
        }
      });
  // AppKit holds it weakly; GNUstep retains it.
  replaceMethod(NSWindow.class, @selector(setInitialFirstResponder:),
                ^(NSWindow*, NSView*){
                });
}

}  // namespace orvane::gnustep
