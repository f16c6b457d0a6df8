// Dragging a file out of a view.
#pragma once

#import <AppKit/AppKit.h>

#include "Orvane/ui/host/HostServices.hpp"

namespace orvane::appkit {

/// Begins the drag with the current event. Does nothing without a current event or when the
/// request's file is not a valid URL.
void beginFileDrag(const ui::DragRequest& request, NSView* _Nonnull view);

}  // namespace orvane::appkit
