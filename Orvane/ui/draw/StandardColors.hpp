// The colours of a platform without semantic colours of its own.
#pragma once

#include "Orvane/ui/draw/Color.hpp"

namespace orvane::ui {

/// A ColorResolver. Increased contrast strengthens the label colours.
[[nodiscard]] Rgba standardColor(SystemColor name, const Appearance& appearance);

}  // namespace orvane::ui
