// The view that hosts a view tree of the kit: it draws what is dirty, forwards pointer and key
// events, and exposes the semantics tree.
#pragma once

#include <functional>

#import <AppKit/AppKit.h>

#include "Orvane/ui/host/ViewHost.hpp"

/// Its coordinates are the kit's: points, origin at the top left.
@interface OrvaneHostView : NSView <NSViewToolTipOwner>

- (nonnull instancetype)initWithRoot:(orvane::ui::RootBuilder)buildRoot;

- (orvane::ui::ViewHost&)host;

/// `dismiss` is called when the content asks to be dismissed.
- (void)setDismiss:(std::function<void()>)dismiss;

@end
