// What a HostingView is to the window system: the host view, with a backdrop behind it and corners
// around both.
#pragma once

#import <AppKit/AppKit.h>

#include "macos/hosting/HostView.hpp"

@interface OrvaneHostingContainer : NSView

- (nonnull instancetype)initWithHostView:(OrvaneHostView* _Nonnull)hostView;

@property(readonly, nonnull) OrvaneHostView* hostView;
@property BOOL respectsSafeArea;
/// What stands for all of this in a window or in the row of a menu: the blurred picture of what
/// lies behind the window, with this view in it, or this view alone. It holds this view, and is not
/// held by it. To be asked for before it is in a window.
- (nonnull NSView*)outermostWithBackdrop:(BOOL)hasBackdrop;
/// How round the corners of that picture are, in points.
@property CGFloat backdropRadius;
/// Whether the view stands in the row of a menu that the keyboard has come to; drawn behind the
/// content, as the rows of the status menu light up under the pointer.
@property(getter=isHighlighted) BOOL highlighted;

@end
