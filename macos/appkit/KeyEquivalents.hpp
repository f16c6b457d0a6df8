// The application's own keys, for the views that the keys come to: without a main menu nobody else
// looks for them.
#pragma once

#include "Orvane/ui/KeyboardShortcut.hpp"

namespace orvane::appkit {

/// Asks the application's delegate. Whether the key meant something to it.
bool performKeyEquivalent(const ui::KeyEvent& event);

}  // namespace orvane::appkit
