// A drag of one file out of a view.
#pragma once

#import <AppKit/AppKit.h>

#include "Orvane/ui/HostServices.hpp"

namespace orvane::appkit {

/// Begins the drag with the event that is being handled. Nothing begins without such an event or
/// when the request's file is not a URL.
void beginFileDrag(const ui::DragRequest& request, NSView* _Nonnull view);

}  // namespace orvane::appkit
