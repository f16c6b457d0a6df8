// The NSView behind a HostingView, for the windows and menus that show it.
#pragma once

#import <AppKit/AppKit.h>

#include "Orvane/platform/appkit/HostingView.hpp"

namespace orvane::appkit {

/// The view keeps alive all that it needs.
[[nodiscard]] NSView* _Nonnull nativeView(const HostingView& view);
/// The view in it that takes keys.
[[nodiscard]] NSView* _Nonnull keyView(const HostingView& view);

}  // namespace orvane::appkit
