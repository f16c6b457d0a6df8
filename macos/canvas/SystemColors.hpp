// The system's semantic colours and the settings that affect them.
#pragma once

#import <AppKit/AppKit.h>

#include "Orvane/ui/draw/Color.hpp"

namespace orvane::appkit {

/// The kit's description of an appearance, including the display's accessibility settings.
[[nodiscard]] ui::Appearance appearanceFrom(NSAppearance* _Nonnull appearance);

/// A ui::ColorResolver. Call it while a view draws, so that the view's own appearance applies,
/// contrast included.
[[nodiscard]] ui::Rgba systemColor(ui::SystemColor name, const ui::Appearance& appearance);

}  // namespace orvane::appkit
