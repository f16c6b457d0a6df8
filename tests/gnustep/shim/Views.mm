// Views as in AppKit: layout before drawing, tracking areas, safe areas, display links and file
// drags.
#include <utility>

#include "tests/gnustep/shim/Methods.hpp"
#include "tests/gnustep/shim/World.hpp"

NSString* const kCACornerCurveCircular = @"circular";
NSString* const kCACornerCurveContinuous = @"continuous";
NSString* const kCAContentsFormatRGBA16Float = @"RGBA16Float";

@implementation CALayer
@end

@implementation CADisplayLink {
 @public
  NSTimer* _timer;
}
- (void)addToRunLoop:(NSRunLoop*)loop forMode:(NSString*)mode {
  [loop addTimer:_timer forMode:mode];
}
- (void)invalidate {
  [_timer invalidate];
}
@end

@implementation NSDraggingSession
@end

@implementation NSDraggingItem {
 @public
  NSURL* _file;
  NSRect _frame;
  id _contents;
}
- (instancetype)initWithPasteboardWriter:(id)writer {
  self = [super init];
  _file = writer;
  return self;
}
- (void)setDraggingFrame:(NSRect)frame contents:(id)contents {
  _frame = frame;
  _contents = contents;
}
@end

namespace {

const char areasKey = 0;
const char layerKey = 0;
const char trackedFrameKey = 0;
const char isInsideKey = 0;
constexpr NSUInteger fullSizeContentView = 1 << 15;
constexpr CGFloat titleBarHeight = 28;

}  // namespace

@implementation NSView (OrvaneShim)

ORVANE_STORED_NUMBER(BOOL, wantsLayer, setWantsLayer, boolValue)
ORVANE_STORED_NUMBER(BOOL, clipsToBounds, setClipsToBounds, boolValue)

- (CALayer*)layer {
  CALayer* layer = objc_getAssociatedObject(self, &layerKey);
  if (layer == nil && self.wantsLayer) {
    layer = [[CALayer alloc] init];
    objc_setAssociatedObject(self, &layerKey, layer, OBJC_ASSOCIATION_RETAIN);
  }
  return layer;
}

- (NSEdgeInsets)safeAreaInsets {
  NSWindow* const window = self.window;
  const bool liesBelowTitle =
      window != nil && window.contentView == self && (window.styleMask & fullSizeContentView) != 0;
  return NSEdgeInsetsMake(liesBelowTitle ? titleBarHeight : 0, 0, 0, 0);
}

- (NSRect)safeAreaRect {
  const NSEdgeInsets insets = self.safeAreaInsets;
  NSRect area = self.bounds;
  area.size.height -= insets.top;
  area.origin.y += self.isFlipped ? insets.top : 0;
  return area;
}

- (NSArray*)trackingAreas {
  NSArray* const areas = objc_getAssociatedObject(self, &areasKey);
  return areas == nil ? @[] : areas;
}
- (void)addTrackingArea:(NSTrackingArea*)area {
  objc_setAssociatedObject(self, &areasKey, [self.trackingAreas arrayByAddingObject:area],
                           OBJC_ASSOCIATION_RETAIN);
  self.window.acceptsMouseMovedEvents = YES;
}
- (void)removeTrackingArea:(NSTrackingArea*)area {
  NSMutableArray* const areas = [self.trackingAreas mutableCopy];
  [areas removeObjectIdenticalTo:area];
  objc_setAssociatedObject(self, &areasKey, areas, OBJC_ASSOCIATION_RETAIN);
}
- (void)updateTrackingAreas {
}
- (void)viewDidChangeEffectiveAppearance {
}
- (void)viewDidChangeBackingProperties {
}

- (CADisplayLink*)displayLinkWithTarget:(id)target selector:(SEL)selector {
  CADisplayLink* const link = [[CADisplayLink alloc] init];
  link->_timer = [NSTimer timerWithTimeInterval:1.0 / 60
                                         target:target
                                       selector:selector
                                       userInfo:nil
                                        repeats:YES];
  return link;
}

- (NSDraggingSession*)beginDraggingSessionWithItems:(NSArray*)items
                                              event:(NSEvent*)event
                                             source:(id<NSDraggingSource>)source {
  NSDraggingSession* const session = [[NSDraggingSession alloc] init];
  const NSDraggingItem* const item = items.firstObject;
  const NSDragOperation operations = [source draggingSession:session
                       sourceOperationMaskForDraggingContext:NSDraggingContextOutsideApplication];
  orvane::gnustep::world().drag = {.url = item->_file.absoluteString.UTF8String,
                                   .operations = static_cast<unsigned>(operations),
                                   .frame = item->_frame,
                                   .hasImage = item->_contents != nil};
  return session;
}

- (BOOL)isAccessibilityElement {
  return NO;
}
- (id)accessibilityHitTest:(NSPoint)point {
  return self;
}
- (id)accessibilityFocusedUIElement {
  return self;
}

@end

@implementation NSEvent (OrvaneShim)
- (BOOL)hasPreciseScrollingDeltas {
  return NO;
}
- (CGFloat)scrollingDeltaX {
  return self.deltaX;
}
- (CGFloat)scrollingDeltaY {
  return self.deltaY;
}
@end

namespace orvane::gnustep {
namespace {

void layOut(NSView* view) {
  if (view.needsLayout) {
    [view layout];
  }
  for (NSView* subview in view.subviews.copy) {
    layOut(subview);
  }
}

/// Layout may invalidate layout; AppKit repeats it a few times.
void layOutWindow(NSWindow* window) {
  for (int pass = 0; pass < 3; ++pass) {
    layOut(window.contentView);
  }
}

void layOutSoon() {
  static bool isDue = false;
  if (std::exchange(isDue, true)) {
    return;
  }
  [NSRunLoop.mainRunLoop performInModes:@[ NSRunLoopCommonModes ]
                                  block:^{
                                    isDue = false;
                                    for (NSWindow* window in NSApp.windows) {
                                      if (window.visible) {
                                        [window displayIfNeeded];
                                        [window flushWindow];
                                      }
                                    }
                                  }];
}

/// Notifies the owners of tracking areas of pointer movements.
void track(NSView* view, NSPoint inWindow, NSEvent* event) {
  NSValue* const frame = [NSValue valueWithRect:view.frame];
  if (![objc_getAssociatedObject(view, &trackedFrameKey) isEqual:frame]) {
    objc_setAssociatedObject(view, &trackedFrameKey, frame, OBJC_ASSOCIATION_RETAIN);
    [view updateTrackingAreas];
  }
  for (NSTrackingArea* area in view.trackingAreas) {
    const BOOL isInside =
        NSMouseInRect([view convertPoint:inWindow fromView:nil], view.visibleRect, view.isFlipped);
    if (isInside != [objc_getAssociatedObject(area, &isInsideKey) boolValue]) {
      objc_setAssociatedObject(area, &isInsideKey, @(isInside), OBJC_ASSOCIATION_RETAIN);
      isInside ? [area.owner mouseEntered:event] : [area.owner mouseExited:event];
    } else if (isInside && event.type == NSMouseMoved) {
      [area.owner mouseMoved:event];
    }
  }
  for (NSView* subview in view.subviews.copy) {
    track(subview, inWindow, event);
  }
}

void trackIn(NSEvent* event) {
  switch (event.type) {
    case NSMouseMoved:
    case NSLeftMouseDown:
    case NSLeftMouseDragged:
    case NSLeftMouseUp:
      if (event.window.contentView != nil) {
        track(event.window.contentView, event.locationInWindow, event);
      }
      break;
    default:
      break;
  }
}

}  // namespace

void installViews() {
  // AppKit's implementation calls the other two, which subclasses override.
  replaceMethod(NSView.class, @selector(setFrame:), ^(NSView* view, NSRect frame) {
    [view setFrameOrigin:frame.origin];
    [view setFrameSize:frame.size];
  });
  // GNUstep's constraint engine retains every view that was laid out until the window is released.
  replaceMethod(NSView.class, @selector(layoutSubtreeIfNeeded), ^(NSView* view) {
    layOut(view);
  });
  static IMP const setNeedsLayout =
      replaceMethod(NSView.class, @selector(setNeedsLayout:), ^(NSView* view, BOOL needsLayout) {
        callReplaced<void, BOOL>(setNeedsLayout, view, @selector(setNeedsLayout:), needsLayout);
        if (needsLayout) {
          layOutSoon();
        }
      });
  static IMP const displayIfNeeded =
      replaceMethod(NSWindow.class, @selector(displayIfNeeded), ^(NSWindow* window) {
        layOutWindow(window);
        callReplaced(displayIfNeeded, window, @selector(displayIfNeeded));
      });
  static IMP const display = replaceMethod(NSWindow.class, @selector(display), ^(NSWindow* window) {
    layOutWindow(window);
    callReplaced(display, window, @selector(display));
  });
  static IMP const send = replaceMethod(
      NSApplication.class, @selector(sendEvent:), ^(NSApplication* application, NSEvent* event) {
        trackIn(event);
        callReplaced<void, id>(send, application, @selector(sendEvent:), event);
      });
}

}  // namespace orvane::gnustep
