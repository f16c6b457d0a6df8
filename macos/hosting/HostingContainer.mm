// What a HostingView is to the window system: the host view, with a backdrop behind it and corners
// around both.
#include "macos/hosting/HostingContainer.hpp"

@implementation OrvaneHostingContainer {
  OrvaneHostView* _hostView;
  NSVisualEffectView* _backdrop;
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

- (BOOL)showsBackdrop {
  return _backdrop != nil;
}

- (void)setShowsBackdrop:(BOOL)shows {
  [_backdrop removeFromSuperview];
  _backdrop = nil;
  if (shows) {
    _backdrop = [[NSVisualEffectView alloc] initWithFrame:self.bounds];
    _backdrop.material = NSVisualEffectMaterialHUDWindow;
    _backdrop.blendingMode = NSVisualEffectBlendingModeBehindWindow;
    // As clear in a panel that is not key.
    _backdrop.state = NSVisualEffectStateActive;
    [self addSubview:_backdrop positioned:NSWindowBelow relativeTo:_hostView];
  }
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
  if (self.window.contentView == self) {
    self.window.initialFirstResponder = _hostView;
    [self.window makeFirstResponder:_hostView];
  }
}

- (void)placeSubviews {
  _backdrop.frame = self.bounds;
  _hostView.frame = _respectsSafeArea ? self.safeAreaRect : self.bounds;
}

@end
