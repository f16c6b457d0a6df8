// Conversion from NSScreen to Screen.
#pragma once

#include <optional>

#import <AppKit/AppKit.h>

#include "Orvane/platform/appkit/Screen.hpp"

namespace orvane::appkit {

/// None for nil.
[[nodiscard]] std::optional<Screen> screenFrom(NSScreen* _Nullable screen);

}  // namespace orvane::appkit
