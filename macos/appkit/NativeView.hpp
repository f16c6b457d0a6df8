// The NSView behind a HostingView, for the windows and menus that show it.
#pragma once

#import <AppKit/AppKit.h>

#include "Orvane/platform/appkit/HostingView.hpp"

namespace orvane::appkit {

/// The view owns everything it needs.
[[nodiscard]] NSView* _Nonnull nativeView(const HostingView& view);
/// The subview that receives keys.
[[nodiscard]] NSView* _Nonnull keyView(const HostingView& view);

}  // namespace orvane::appkit
