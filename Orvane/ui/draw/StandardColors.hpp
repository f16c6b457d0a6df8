// The colours a platform without its own semantic colours uses.
#pragma once

#include "Orvane/ui/draw/Color.hpp"

namespace orvane::ui {

// A ColorResolver. Increased contrast strengthens the label colours.
Rgba standardColor(SystemColor name, const Appearance& appearance);

}  // namespace orvane::ui
