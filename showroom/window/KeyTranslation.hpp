// What a key of the computer is to the simulated Mac.
#pragma once

#include <cstdint>
#include <optional>

#include <SDL.h>

#include "Orvane/ui/views/KeyboardShortcut.hpp"

namespace orvane::showroom {

/// The key of an event of a pressed key; none for keys that the Mac's programs here have no use
/// for, such as the modifiers themselves. Alt is Option, and the Super key is Command.
[[nodiscard]] std::optional<ui::KeyEvent> keyEventOf(const SDL_Keysym& keysym);

/// The kCGEventFlagMask constants of the modifiers that are held, or-ed together.
[[nodiscard]] std::uint64_t modifierFlagsOf(SDL_Keymod state);

}  // namespace orvane::showroom
