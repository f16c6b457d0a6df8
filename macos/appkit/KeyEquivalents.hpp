// The application's key equivalents, for the views that receive keys: without a main menu, nothing
// else dispatches them.
#pragma once

#include "Orvane/ui/views/KeyboardShortcut.hpp"

namespace orvane::appkit {

/// Passes the key to the application's delegate. Returns whether it was handled.
bool performKeyEquivalent(const ui::KeyEvent& event);

}  // namespace orvane::appkit
