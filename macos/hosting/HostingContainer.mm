// The window system's side of a HostingView: the host view, with an optional backdrop behind it and
// rounded corners around both.
#include "macos/hosting/HostingContainer.hpp"

#include <cmath>

#include "macos/canvas/QuartzCanvas.hpp"

namespace ui = orvane::ui;

namespace {

/// The mask of the backdrop; its middle is stretched. A layer's corners clip what is drawn in the
/// window, but not what the window server draws behind it.
NSImage* backdropMask(CGFloat radius) {
  // A continuous corner extends beyond its radius.
  const CGFloat reach = std::ceil(1.6 * radius);
  const CGFloat side = 2 * reach + 1;
  NSImage* const mask = [NSImage
       imageWithSize:NSMakeSize(side, side)
             flipped:YES
      drawingHandler:^BOOL(NSRect rect) {
        CGContextRef const context = NSGraphicsContext.currentContext.CGContext;
        const ui::Rect area{rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
        orvane::appkit::QuartzCanvas(context, 1)
            .fill(ui::Shape::roundedRectangle(area, radius), ui::Paint::solid({0, 0, 0, 1}));
        return YES;
      }];
  mask.capInsets = NSEdgeInsetsMake(reach, reach, reach, reach);
  mask.resizingMode = NSImageResizingModeStretch;
  return mask;
}

}  // namespace

@implementation OrvaneHostingContainer {
  OrvaneHostView* _hostView;
  // The backdrop retains this view.
  __weak NSVisualEffectView* _backdrop;
  CGFloat _backdropRadius;
  BOOL _respectsSafeArea;
  BOOL _highlighted;
}

- (instancetype)initWithHostView:(OrvaneHostView*)hostView {
  self = [super initWithFrame:NSZeroRect];
  if (self != nil) {
    _hostView = hostView;
    _respectsSafeArea = YES;
    self.autoresizesSubviews = NO;
    [self addSubview:hostView];
  }
  return self;
}

- (OrvaneHostView*)hostView {
  return _hostView;
}

- (BOOL)respectsSafeArea {
  return _respectsSafeArea;
}

- (void)setRespectsSafeArea:(BOOL)respects {
  _respectsSafeArea = respects;
  [self placeSubviews];
}

- (NSEdgeInsets)safeAreaInsets {
  return _respectsSafeArea ? super.safeAreaInsets : NSEdgeInsetsZero;
}

// The backdrop is this view's superview, not its subview: its mask affects the window's shadow only
// when it is the window's content view.
- (NSView*)outermostWithBackdrop:(BOOL)hasBackdrop {
  const NSRect frame = _backdrop == nil ? self.frame : _backdrop.frame;
  [self removeFromSuperview];
  if (!hasBackdrop) {
    self.frame = frame;
    return self;
  }
  NSVisualEffectView* const backdrop = [[NSVisualEffectView alloc] initWithFrame:frame];
  backdrop.material = NSVisualEffectMaterialHUDWindow;
  backdrop.blendingMode = NSVisualEffectBlendingModeBehindWindow;
  // Equally clear in a panel that is not key.
  backdrop.state = NSVisualEffectStateActive;
  self.frame = backdrop.bounds;
  self.autoresizingMask = NSViewWidthSizable | NSViewHeightSizable;
  [backdrop addSubview:self];
  _backdrop = backdrop;
  [self roundBackdrop];
  return backdrop;
}

- (CGFloat)backdropRadius {
  return _backdropRadius;
}

- (void)setBackdropRadius:(CGFloat)radius {
  _backdropRadius = radius;
  [self roundBackdrop];
}

- (void)roundBackdrop {
  _backdrop.maskImage = _backdropRadius > 0 ? backdropMask(_backdropRadius) : nil;
}

- (BOOL)isHighlighted {
  return _highlighted;
}

- (void)setHighlighted:(BOOL)highlighted {
  if (highlighted != _highlighted) {
    _highlighted = highlighted;
    self.needsDisplay = YES;
  }
}

- (void)drawRect:(NSRect)dirtyRect {
  if (_highlighted) {
    [[NSColor.labelColor colorWithAlphaComponent:0.08] setFill];
    [[NSBezierPath bezierPathWithRoundedRect:NSInsetRect(self.bounds, 3, 2) xRadius:6
                                     yRadius:6] fill];
  }
}

- (void)setFrameSize:(NSSize)size {
  [super setFrameSize:size];
  [self placeSubviews];
}

- (void)viewDidMoveToWindow {
  [super viewDidMoveToWindow];
  [self placeSubviews];
}

- (void)placeSubviews {
  _hostView.frame = _respectsSafeArea ? self.safeAreaRect : self.bounds;
}

@end
