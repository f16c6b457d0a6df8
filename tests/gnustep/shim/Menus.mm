// Menus with views as rows and their own tracking loop, and the status item with its button in a
// small window at the top right.
#include <algorithm>
#include <vector>

#include "tests/gnustep/shim/Methods.hpp"

namespace {

__strong NSMenu* trackedMenu = nil;
bool isCancelled = false;

const char itemKey = 0;
const char buttonKey = 0;
const char windowKey = 0;

}  // namespace

@implementation NSMenuItem (OrvaneShim)

- (NSView*)view {
  return objc_getAssociatedObject(self, @selector(view));
}

- (void)setView:(NSView*)view {
  objc_setAssociatedObject(self, @selector(view), view, OBJC_ASSOCIATION_RETAIN);
  if (view != nil) {
    // The item owns its view.
    objc_setAssociatedObject(view, &itemKey, self, OBJC_ASSOCIATION_ASSIGN);
  }
}

@end

@implementation NSView (OrvaneShimMenu)
- (NSMenuItem*)enclosingMenuItem {
  NSView* view = self;
  while (view != nil && objc_getAssociatedObject(view, &itemKey) == nil) {
    view = view.superview;
  }
  return view == nil ? nil : objc_getAssociatedObject(view, &itemKey);
}
@end

@implementation NSMenu (OrvaneShim)

ORVANE_STORED_NUMBER(CGFloat, minimumWidth, setMinimumWidth, doubleValue)

- (void)cancelTracking {
  isCancelled = isCancelled || self == trackedMenu;
}
- (void)cancelTrackingWithoutAnimation {
  [self cancelTracking];
}

@end

@interface OrvaneShimMenuWindow : NSPanel
@end
@implementation OrvaneShimMenuWindow
- (BOOL)canBecomeKeyWindow {
  return YES;
}
@end

/// The rows of an open menu, from top to bottom; a row without a view is blank.
@interface OrvaneShimMenuView : NSView
- (instancetype)initWithMenu:(NSMenu*)menu;
/// Handle an event of the menu; return whether it has chosen an item.
- (BOOL)chooseByKey:(NSEvent*)event;
- (BOOL)chooseByMouse:(NSEvent*)event;
- (NSMenuItem*)highlighted;
@end

@implementation OrvaneShimMenuView {
  NSMenu* _shown;
  std::vector<NSRect> _rows;
  NSMenuItem* _highlighted;
}

- (instancetype)initWithMenu:(NSMenu*)menu {
  self = [super initWithFrame:NSZeroRect];
  _shown = menu;
  CGFloat width = menu.minimumWidth;
  for (NSMenuItem* item in menu.itemArray) {
    width = std::max(width, item.view.frame.size.width);
  }
  width = std::max<CGFloat>(width, 120);
  CGFloat y = 5;
  for (NSMenuItem* item in menu.itemArray) {
    constexpr CGFloat plainHeight = 22;
    NSView* const view = item.view;
    const CGFloat height = view == nil ? plainHeight : view.frame.size.height;
    _rows.push_back(NSMakeRect(0, y, width, height));
    if (view != nil) {
      view.frame = NSMakeRect(0, y, view.frame.size.width, height);
      [self addSubview:view];
    }
    y += height;
  }
  self.frame = NSMakeRect(0, 0, width, y + 5);
  return self;
}

- (BOOL)isFlipped {
  return YES;
}

- (NSMenuItem*)highlighted {
  return _highlighted;
}

- (void)highlight:(NSMenuItem*)item {
  if (item != _highlighted) {
    _highlighted = item;
    if ([(id)_shown.delegate respondsToSelector:@selector(menu:willHighlightItem:)]) {
      [_shown.delegate menu:_shown willHighlightItem:item];
    }
  }
}

- (BOOL)canChoose:(NSMenuItem*)item {
  return item != nil && !item.isSeparatorItem && item.isEnabled;
}

- (BOOL)chooseByKey:(NSEvent*)event {
  const unichar key = [event.characters characterAtIndex:0];
  if (key == NSCarriageReturnCharacter) {
    return [self canChoose:_highlighted];
  }
  const NSInteger count = _shown.numberOfItems;
  const NSInteger step = key == NSDownArrowFunctionKey ? 1 : key == NSUpArrowFunctionKey ? -1 : 0;
  NSInteger index =
      _highlighted == nil ? (step > 0 ? -1 : count) : [_shown indexOfItem:_highlighted];
  if (step != 0) {
    do {
      index += step;
    } while (index >= 0 && index < count && ![self canChoose:[_shown itemAtIndex:index]]);
    if (index >= 0 && index < count) {
      [self highlight:[_shown itemAtIndex:index]];
    }
  }
  return NO;
}

- (BOOL)chooseByMouse:(NSEvent*)event {
  const NSPoint point = [self convertPoint:event.locationInWindow fromView:nil];
  NSMenuItem* under = nil;
  for (std::size_t row = 0; row < _rows.size(); ++row) {
    if (NSPointInRect(point, _rows[row])) {
      under = [_shown itemAtIndex:static_cast<NSInteger>(row)];
    }
  }
  if (event.type == NSMouseMoved || event.type == NSLeftMouseDragged) {
    [self highlight:[self canChoose:under] ? under : nil];
  }
  // A row with a view handles the click itself, and the menu stays open.
  if (event.type == NSLeftMouseUp && under.view == nil && [self canChoose:under]) {
    _highlighted = under;
    return YES;
  }
  return NO;
}

@end

namespace orvane::gnustep {
namespace {

void post(NSString* name, NSMenu* menu) {
  [NSNotificationCenter.defaultCenter postNotificationName:name object:menu];
}

/// Returns the chosen item, or nil if the menu is closed without a choice.
NSMenuItem* track(OrvaneShimMenuView* view, NSWindow* window) {
  while (!isCancelled) {
    @autoreleasepool {
      NSEvent* const event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                                untilDate:[NSDate dateWithTimeIntervalSinceNow:0.05]
                                                   inMode:NSEventTrackingRunLoopMode
                                                  dequeue:YES];
      if (event == nil || isCancelled) {
        continue;
      }
      constexpr unichar escape = 0x1B;
      const bool isKey = event.type == NSKeyDown;
      if (isKey ? [event.characters characterAtIndex:0] == escape
                : event.type == NSLeftMouseDown && event.window != window) {
        return nil;
      }
      if (isKey ? [view chooseByKey:event] : event.window == window && [view chooseByMouse:event]) {
        return view.highlighted;
      }
      if (!isKey) {
        [NSApp sendEvent:event];
      }
    }
  }
  return nil;
}

/// Shows the menu with its top left corner at a screen point; returns whether an item was chosen,
/// after running its action.
BOOL runMenu(NSMenu* menu, NSPoint topLeft) {
  const id<NSMenuDelegate> delegate = menu.delegate;
  if (delegate != nil) {
    [delegate menuNeedsUpdate:menu];
    [delegate menuWillOpen:menu];
  }
  OrvaneShimMenuView* const view = [[OrvaneShimMenuView alloc] initWithMenu:menu];
  const NSSize size = view.frame.size;
  OrvaneShimMenuWindow* const window = [[OrvaneShimMenuWindow alloc]
      initWithContentRect:NSMakeRect(topLeft.x, topLeft.y - size.height, size.width, size.height)
                styleMask:NSBorderlessWindowMask
                  backing:NSBackingStoreBuffered
                    defer:NO];
  window.releasedWhenClosed = NO;
  window.level = NSPopUpMenuWindowLevel;
  window.identifier = @"OrvaneShimMenu";
  window.contentView = view;
  window.acceptsMouseMovedEvents = YES;
  NSMenu* const outer = trackedMenu;
  trackedMenu = menu;
  isCancelled = false;
  post(NSMenuDidBeginTrackingNotification, menu);
  [window orderFrontRegardless];
  NSMenuItem* const chosen = track(view, window);
  for (NSView* row in view.subviews.copy) {
    [row removeFromSuperview];
  }
  [window close];
  trackedMenu = outer;
  post(NSMenuDidEndTrackingNotification, menu);
  [delegate menuDidClose:menu];
  if (chosen != nil) {
    [NSApp sendAction:chosen.action to:chosen.target from:chosen];
  }
  return chosen != nil;
}

}  // namespace
}  // namespace orvane::gnustep

@interface OrvaneShimStatusButton : NSStatusBarButton {
 @public
  __weak NSStatusItem* _item;
}
@end

@implementation OrvaneShimStatusButton
- (void)performClick:(id)sender {
  NSMenu* const menu = _item.menu;
  if (menu != nil) {
    const NSRect frame = self.window.frame;
    orvane::gnustep::runMenu(menu, NSMakePoint(NSMinX(frame) - 200, NSMinY(frame)));
  }
}
- (void)mouseDown:(NSEvent*)event {
  [self performClick:self];
}
@end

@implementation NSStatusItem (OrvaneShim)

ORVANE_STORED_OBJECT(NSString*, autosaveName, setAutosaveName, OBJC_ASSOCIATION_COPY)

- (NSStatusBarButton*)button {
  OrvaneShimStatusButton* button = objc_getAssociatedObject(self, &buttonKey);
  if (button == nil) {
    const NSRect screen = [NSScreen.screens.firstObject frame];
    NSPanel* const window = [[NSPanel alloc]
        initWithContentRect:NSMakeRect(NSMaxX(screen) - 120, NSMaxY(screen) - 24, 28, 24)
                  styleMask:NSBorderlessWindowMask
                    backing:NSBackingStoreBuffered
                      defer:NO];
    window.releasedWhenClosed = NO;
    window.hidesOnDeactivate = NO;
    window.level = NSStatusWindowLevel;
    button = [[OrvaneShimStatusButton alloc] initWithFrame:NSMakeRect(0, 0, 28, 24)];
    button.bordered = NO;
    button->_item = self;
    window.contentView = button;
    [window orderFrontRegardless];
    objc_setAssociatedObject(self, &buttonKey, button, OBJC_ASSOCIATION_RETAIN);
    objc_setAssociatedObject(self, &windowKey, window, OBJC_ASSOCIATION_RETAIN);
  }
  return button;
}

@end

namespace orvane::gnustep {

void installMenus() {
  replaceMethod(NSMenu.class, @selector(popUpMenuPositioningItem:atLocation:inView:),
                ^BOOL(NSMenu* menu, NSMenuItem*, NSPoint location, NSView* view) {
                  const NSRect place = {[view convertPoint:location toView:nil], NSZeroSize};
                  return runMenu(menu, [view.window convertRectToScreen:place].origin);
                });
  replaceClassMethod(NSStatusBar.class, @selector(systemStatusBar), ^NSStatusBar*(Class) {
    static NSStatusBar* const bar = [[NSStatusBar alloc] init];
    return bar;
  });
  static IMP const removeItem = replaceMethod(
      NSStatusBar.class, @selector(removeStatusItem:), ^(NSStatusBar* bar, NSStatusItem* item) {
        [item.button.window close];
        callReplaced<void, id>(removeItem, bar, @selector(removeStatusItem:), item);
      });
}

}  // namespace orvane::gnustep
