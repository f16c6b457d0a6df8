// The view that hosts a view tree of the kit: it draws what is dirty, forwards pointer and key
// events, and exposes the semantics tree.
#include "macos/hosting/HostView.hpp"

#import <QuartzCore/QuartzCore.h>

#include <memory>
#include <optional>
#include <utility>

#include "macos/appkit/KeyEquivalents.hpp"
#include "macos/appkit/RunSoon.hpp"
#include "macos/appkit/Strings.hpp"
#include "macos/canvas/CoreTextMeasurer.hpp"
#include "macos/canvas/QuartzCanvas.hpp"
#include "macos/canvas/SystemColors.hpp"
#include "macos/canvas/SystemImages.hpp"
#include "macos/hosting/AccessibilityTree.hpp"
#include "macos/hosting/FileDrag.hpp"
#include "macos/hosting/FrameSource.hpp"
#include "macos/hosting/KeyTranslation.hpp"
#include "macos/hosting/PopUpMenu.hpp"

namespace appkit = orvane::appkit;
namespace ui = orvane::ui;

namespace {

ui::Rect rectFrom(NSRect rect) {
  return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

NSRect rectFrom(const ui::Rect& rect) {
  return NSMakeRect(rect.x, rect.y, rect.width, rect.height);
}

ui::TextMeasurer& textMeasurer() {
  static appkit::CoreTextMeasurer measurer;
  return measurer;
}

}  // namespace

@implementation OrvaneHostView {
  // The order matters for destruction: the host goes first, since it calls the others.
  std::function<void()> _dismiss;
  std::unique_ptr<appkit::FrameSource> _frames;
  std::unique_ptr<appkit::AccessibilityTree> _accessibility;
  BOOL _semanticsHaveChanged;
  BOOL _isPressed;
  BOOL _hasDrawn;
  std::optional<ui::Tooltip> _tooltip;
  std::unique_ptr<ui::ViewHost> _host;
}

- (instancetype)initWithRoot:(ui::RootBuilder)buildRoot {
  self = [super initWithFrame:NSZeroRect];
  if (self == nil) {
    return nil;
  }
  // Thin veils one over another leave stripes where each is rounded to eight bits.
  self.wantsLayer = YES;
  self.layer.contentsFormat = kCAContentsFormatRGBA16Float;
  __weak OrvaneHostView* const weakSelf = self;
  _semanticsHaveChanged = YES;
  _frames = std::make_unique<appkit::FrameSource>(self, [weakSelf] { [weakSelf frameComes]; });
  _accessibility = std::make_unique<appkit::AccessibilityTree>(
      self, [weakSelf](std::uint64_t identifier) { [weakSelf press:identifier]; },
      [weakSelf](std::uint64_t identifier) { [weakSelf focus:identifier]; });
  ui::HostServices services;
  services.requestRedraw = [weakSelf] { weakSelf.needsLayout = YES; };
  services.requestFrames = [weakSelf] { [weakSelf startFrames]; };
  services.openMenu = [weakSelf](const ui::MenuRequest& request) { [weakSelf openMenu:request]; };
  services.beginDrag = [weakSelf](const ui::DragRequest& request) {
    if (OrvaneHostView* const view = weakSelf; view != nil) {
      appkit::beginFileDrag(request, view);
    }
  };
  services.dismiss = [weakSelf] { [weakSelf dismiss]; };
  services.semanticsChanged = [weakSelf] { [weakSelf semanticsDidChange]; };
  _host = std::make_unique<ui::ViewHost>(ui::HostPlatform{
      &textMeasurer(), appkit::systemImageSource(), appkit::systemColor, std::move(services)});
  _host->setRoot(std::move(buildRoot));
  [self takeOverAppearance];
  [NSWorkspace.sharedWorkspace.notificationCenter
      addObserver:self
         selector:@selector(displayOptionsDidChange:)
             name:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
           object:nil];
  [NSNotificationCenter.defaultCenter addObserver:self
                                         selector:@selector(displayOptionsDidChange:)
                                             name:NSSystemColorsDidChangeNotification
                                           object:nil];
  return self;
}

- (ui::ViewHost&)host {
  return *_host;
}

- (void)setDismiss:(std::function<void()>)dismiss {
  _dismiss = std::move(dismiss);
}

- (void)dismiss {
  // It may destroy this view.
  const std::function<void()> dismiss = _dismiss;
  if (dismiss) {
    dismiss();
  }
}

#pragma mark Layout and drawing

- (BOOL)isFlipped {
  return YES;
}

- (void)setFrameSize:(NSSize)size {
  [super setFrameSize:size];
  // The superclass's initialiser calls this before there is a host.
  if (_host != nullptr) {
    _host->setSize({size.width, size.height});
  }
}

- (void)layout {
  [super layout];
  [self update];
  // In a menu, the tooltip of an item appears, and that of a view does not.
  NSMenuItem* const item = self.enclosingMenuItem;
  const ui::Point middle{NSMidX(self.bounds), NSMidY(self.bounds)};
  const auto tooltip = item == nil ? std::nullopt : _host->tooltipAt(middle);
  NSString* const text = tooltip ? appkit::foundationString(tooltip->text) : nil;
  if (text != item.toolTip && ![text isEqualToString:item.toolTip]) {
    item.toolTip = text;
  }
}

- (void)update {
  // System colours are also resolved while views are built, outside of drawing.
  [self.effectiveAppearance performAsCurrentDrawingAppearance:^{
    self->_host->tick(CACurrentMediaTime());
  }];
  for (const ui::Rect& dirty : _host->takeDirtyRects()) {
    [self setNeedsDisplayInRect:rectFrom(dirty)];
  }
}

- (void)frameComes {
  [self update];
  if (!_host->nextFrameWanted()) {
    _frames->stop();
  }
}

- (void)startFrames {
  if (self.window != nil) {
    _frames->start();
  }
}

- (void)drawRect:(NSRect)dirtyRect {
  CGContextRef const context = NSGraphicsContext.currentContext.CGContext;
  const CGFloat scale = self.window == nil ? 1 : self.window.backingScaleFactor;
  appkit::QuartzCanvas canvas(context, scale);
  const NSRect* areas = nullptr;
  NSInteger count = 0;
  [self getRectsBeingDrawn:&areas count:&count];
  for (NSInteger index = 0; index < count; ++index) {
    _host->paint(canvas, rectFrom(NSIntersectionRect(areas[index], self.bounds)));
  }
  if (!_hasDrawn) {
    _hasDrawn = YES;
    [self castShadowSoon];
  }
}

// A window without a background casts the shadow of its content, which is drawn only now.
- (void)castShadowSoon {
  __weak NSWindow* const window = self.window;
  appkit::runSoon(@[ NSRunLoopCommonModes ], ^{
    [window invalidateShadow];
  });
}

#pragma mark Surroundings

- (void)viewDidMoveToWindow {
  [super viewDidMoveToWindow];
  _frames->stop();
  if (self.window == nil) {
    // A menu row is shown again when the menu reopens.
    _isPressed = NO;
    _host->pointerCancelled();
    _host->pointerExited();
  } else {
    [self takeOverAppearance];
    self.needsLayout = YES;
  }
  if (_host->nextFrameWanted()) {
    [self startFrames];
  }
}

- (void)viewDidChangeBackingProperties {
  [super viewDidChangeBackingProperties];
  self.needsDisplay = YES;
}

- (void)viewDidChangeEffectiveAppearance {
  [super viewDidChangeEffectiveAppearance];
  [self takeOverAppearance];
}

- (void)displayOptionsDidChange:(NSNotification*)notification {
  [self takeOverAppearance];
}

- (void)takeOverAppearance {
  _host->setAppearance(appkit::appearanceFrom(self.effectiveAppearance));
  // The accent colour may change in an equal appearance, and built views keep their colours.
  _host->invalidate();
  self.needsDisplay = YES;
}

#pragma mark Pointer

- (ui::Point)pointOf:(NSEvent*)event {
  const NSPoint point = [self convertPoint:event.locationInWindow fromView:nil];
  return {point.x, point.y};
}

- (void)updateTrackingAreas {
  [super updateTrackingAreas];
  for (NSTrackingArea* area in self.trackingAreas.copy) {
    if (area.owner == self) {
      [self removeTrackingArea:area];
    }
  }
  // Always active: panels and menus track the pointer even while another application is active.
  [self addTrackingArea:[[NSTrackingArea alloc]
                            initWithRect:NSZeroRect
                                 options:NSTrackingMouseEnteredAndExited | NSTrackingMouseMoved |
                                         NSTrackingEnabledDuringMouseDrag | NSTrackingActiveAlways |
                                         NSTrackingInVisibleRect
                                   owner:self
                                userInfo:nil]];
}

- (BOOL)acceptsFirstMouse:(NSEvent*)event {
  return YES;
}

// Whether a press moves the window depends on its location; mouseDown: decides.
- (BOOL)mouseDownCanMoveWindow {
  return NO;
}

- (void)mouseEntered:(NSEvent*)event {
  [self mouseMoved:event];
}

- (void)mouseMoved:(NSEvent*)event {
  const ui::Point point = [self pointOf:event];
  [self update];
  _host->pointerMoved(point);
  [self showTooltip:_host->tooltipAt(point)];
}

- (void)mouseExited:(NSEvent*)event {
  [self update];
  _host->pointerExited();
}

- (void)mouseDown:(NSEvent*)event {
  _isPressed = YES;
  [self update];
  if (!_host->pointerDown([self pointOf:event]) && self.window.movableByWindowBackground) {
    [self.window performWindowDragWithEvent:event];
  }
}

- (void)mouseDragged:(NSEvent*)event {
  [self update];
  _host->pointerDragged([self pointOf:event]);
}

- (void)mouseUp:(NSEvent*)event {
  const ui::Point point = [self pointOf:event];
  const BOOL wasPressed = _isPressed;
  _isPressed = NO;
  [self update];
  // In a menu, the button may have been pressed on the status item and released over a row.
  if (!wasPressed && self.enclosingMenuItem != nil) {
    _host->pointerDown(point);
  }
  _host->pointerUp(point);
}

- (void)scrollWheel:(NSEvent*)event {
  // A wheel counts in lines.
  const CGFloat pointsPerUnit = event.hasPreciseScrollingDeltas ? 1 : 10;
  [self update];
  if (!_host->scroll([self pointOf:event], -event.scrollingDeltaX * pointsPerUnit,
                     -event.scrollingDeltaY * pointsPerUnit)) {
    [super scrollWheel:event];
  }
}

- (void)showTooltip:(const std::optional<ui::Tooltip>&)tooltip {
  const bool isSame =
      tooltip.has_value() == _tooltip.has_value() &&
      (!tooltip || (tooltip->text == _tooltip->text && tooltip->frame == _tooltip->frame));
  if (isSame) {
    return;
  }
  _tooltip = tooltip;
  [self removeAllToolTips];
  if (tooltip) {
    [self addToolTipRect:rectFrom(tooltip->frame) owner:self userData:nullptr];
  }
}

- (NSString*)view:(NSView*)view
    stringForToolTip:(NSToolTipTag)tag
               point:(NSPoint)point
            userData:(void*)data {
  NSString* const text = _tooltip ? appkit::foundationString(_tooltip->text) : nil;
  return text == nil ? @"" : text;
}

#pragma mark Keyboard

- (BOOL)acceptsFirstResponder {
  return YES;
}

- (BOOL)handleKey:(NSEvent*)event {
  // A key that is held down must not activate its control repeatedly.
  if (appkit::isRepeatedActivation(event)) {
    return NO;
  }
  const std::optional<ui::KeyEvent> key = appkit::keyEventFrom(event);
  if (!key) {
    return NO;
  }
  [self update];
  return _host->keyDown(*key) || appkit::performKeyEquivalent(*key);
}

- (void)keyDown:(NSEvent*)event {
  if (![self handleKey:event] && !appkit::isRepeatedActivation(event)) {
    [super keyDown:event];
  }
}

- (BOOL)performKeyEquivalent:(NSEvent*)event {
  const bool hasCommand = (event.modifierFlags & NSEventModifierFlagCommand) != 0;
  return (hasCommand && [self handleKey:event]) || [super performKeyEquivalent:event];
}

#pragma mark Services

- (void)openMenu:(const ui::MenuRequest&)request {
  // The menu runs its own event loop, so it must not run within the handler that requests it, nor
  // in a task of the main queue, which it would block.
  __weak OrvaneHostView* const weakSelf = self;
  // A block would capture the reference, which dangles by then.
  const ui::MenuRequest kept = request;
  appkit::runSoon(@[ NSRunLoopCommonModes ], ^{
    // The window may have been closed in the meantime.
    OrvaneHostView* const view = weakSelf;
    if (view.window.visible) {
      appkit::runPopUpMenu(kept, view);
    }
  });
}

#pragma mark Accessibility

- (void)semanticsDidChange {
  if (_semanticsHaveChanged) {
    return;
  }
  _semanticsHaveChanged = YES;
  if (!NSWorkspace.sharedWorkspace.voiceOverEnabled) {
    return;
  }
  // VoiceOver is running: notify it soon rather than when it next asks.
  __weak OrvaneHostView* const weakSelf = self;
  appkit::runSoon(@[ NSRunLoopCommonModes ], ^{
    [weakSelf postLayoutChanged];
  });
}

- (void)postLayoutChanged {
  NSWindow* const window = self.window;
  if (!_semanticsHaveChanged || window == nil) {
    return;
  }
  // The view is not an element itself, so the window posts the notification for its elements.
  NSDictionary* const changed = @{NSAccessibilityUIElementsKey : self.accessibilityTree.children()};
  NSAccessibilityPostNotificationWithUserInfo(window, NSAccessibilityLayoutChangedNotification,
                                              changed);
}

- (void)press:(std::uint64_t)identifier {
  [self update];
  _host->press(identifier);
}

// The keyboard focus follows the VoiceOver cursor, if the user has set that.
- (void)focus:(std::uint64_t)identifier {
  [self update];
  if (_host->focus(identifier)) {
    [self.window makeFirstResponder:self];
  }
}

- (appkit::AccessibilityTree&)accessibilityTree {
  if (_semanticsHaveChanged || _host->needsUpdate()) {
    [self update];
    _semanticsHaveChanged = NO;
    _accessibility->update(_host->semantics());
  }
  return *_accessibility;
}

- (BOOL)isAccessibilityElement {
  return NO;
}

- (NSArray*)accessibilityChildren {
  return self.accessibilityTree.children();
}

- (id)accessibilityFocusedUIElement {
  OrvaneAccessibilityElement* const focused = self.accessibilityTree.focused();
  return focused == nil ? [super accessibilityFocusedUIElement] : focused;
}

- (id)accessibilityHitTest:(NSPoint)point {
  id const hit = self.accessibilityTree.elementAt(point);
  return hit == nil ? [super accessibilityHitTest:point] : hit;
}

@end
