// The system's semantic colours and the settings that decide how they look.
#pragma once

#import <AppKit/AppKit.h>

#include "Orvane/ui/Color.hpp"

namespace orvane::appkit {

/// What the kit needs to know of an appearance, with the accessibility settings of the display.
[[nodiscard]] ui::Appearance appearanceFrom(NSAppearance* _Nonnull appearance);

/// A ui::ColorResolver. Ask it while a view draws: then the view's own appearance decides, down to
/// its contrast.
[[nodiscard]] ui::Rgba systemColor(ui::SystemColor name, const ui::Appearance& appearance);

}  // namespace orvane::appkit
