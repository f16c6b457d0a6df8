// The native pop-up menu of a picker.
#pragma once

#import <AppKit/AppKit.h>

#include "Orvane/ui/host/HostServices.hpp"

namespace orvane::appkit {

/// Shows the menu over its anchor in `view`, whose coordinates are flipped, reports the choice and
/// returns when the menu has closed.
void runPopUpMenu(const ui::MenuRequest& request, NSView* _Nonnull view);

}  // namespace orvane::appkit
