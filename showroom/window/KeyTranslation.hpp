// Translates the computer's keys into those of the simulated Mac.
#pragma once

#include <cstdint>
#include <optional>

#include <SDL.h>

#include "Orvane/ui/views/KeyboardShortcut.hpp"

namespace orvane::showroom {

/// The key event of a pressed key; none for keys without a use, such as the modifiers themselves.
/// Alt is Option, and the Super key is Command.
[[nodiscard]] std::optional<ui::KeyEvent> keyEventOf(const SDL_Keysym& keysym);

/// The kCGEventFlagMask bits of the held modifiers.
[[nodiscard]] std::uint64_t modifierFlagsOf(SDL_Keymod state);

}  // namespace orvane::showroom
