// The names of the unlock modifiers in the interface.
#pragma once

#include <string_view>

#include "Orvane/model/OrvaneSettings.hpp"

namespace orvane {

/// The key's symbol and English name, in every language: "⌥ Option".
[[nodiscard]] std::string_view shortcutText(OrvaneModifier modifier);

}  // namespace orvane
