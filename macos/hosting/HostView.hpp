// The view that shows a tree of the view kit: it draws what is dirty, passes on the pointer and the
// keys, and serves the tree of meanings.
#pragma once

#include <functional>

#import <AppKit/AppKit.h>

#include "Orvane/ui/ViewHost.hpp"

/// Its coordinates are the kit's: points, origin at the top left.
@interface OrvaneHostView : NSView <NSViewToolTipOwner>

- (nonnull instancetype)initWithRoot:(orvane::ui::ViewHost::RootBuilder)buildRoot;

- (orvane::ui::ViewHost&)host;

/// Called when the content asks for the end of what it is shown in.
- (void)setDismiss:(std::function<void()>)dismiss;

@end
