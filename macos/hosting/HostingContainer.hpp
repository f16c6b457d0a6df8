// The window system's side of a HostingView: the host view, with an optional backdrop behind it and
// rounded corners around both.
#pragma once

#import <AppKit/AppKit.h>

#include "macos/hosting/HostView.hpp"

@interface OrvaneHostingContainer : NSView

- (nonnull instancetype)initWithHostView:(OrvaneHostView* _Nonnull)hostView;

@property(readonly, nonnull) OrvaneHostView* hostView;
@property BOOL respectsSafeArea;
/// The view to put into a window or a menu row: the backdrop with this view in it, or this view
/// alone. The backdrop retains this view, not the reverse. To be called before the view is in a
/// window.
- (nonnull NSView*)outermostWithBackdrop:(BOOL)hasBackdrop;
/// The corner radius of the backdrop, in points.
@property CGFloat backdropRadius;
/// Whether the view is in the menu row that the keyboard has highlighted. The highlight is drawn
/// behind the content and looks like the status menu's hover state.
@property(getter=isHighlighted) BOOL highlighted;

@end
