// Conversion of the window system's key events to the view kit's.
#pragma once

#include <optional>

#import <AppKit/AppKit.h>

#include "Orvane/ui/views/KeyboardShortcut.hpp"

namespace orvane::appkit {

/// None for anything but a key press, and for a key press without characters.
[[nodiscard]] std::optional<ui::KeyEvent> keyEventFrom(NSEvent* _Nonnull event);

/// Whether the event is a key's auto-repeat, except for keys that move the focus.
[[nodiscard]] bool isRepeatedActivation(NSEvent* _Nonnull event);

}  // namespace orvane::appkit
