// From the window system's key events to the view kit's.
#pragma once

#include <optional>

#import <AppKit/AppKit.h>

#include "Orvane/ui/KeyboardShortcut.hpp"

namespace orvane::appkit {

/// None for an event that types nothing, and for anything but a key that goes down.
[[nodiscard]] std::optional<ui::KeyEvent> keyEventFrom(NSEvent* _Nonnull event);

/// A key that is held down and sends its event again, unless it is one that moves the focus.
[[nodiscard]] bool isRepeatedActivation(NSEvent* _Nonnull event);

}  // namespace orvane::appkit
