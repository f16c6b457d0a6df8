// The system's font for a size and weight of the view kit.
#pragma once

#import <AppKit/AppKit.h>

#include "Orvane/ui/draw/Font.hpp"

namespace orvane::appkit {

[[nodiscard]] NSFontWeight fontWeight(ui::Weight weight);

[[nodiscard]] NSFont* _Nonnull systemFont(const ui::Font& font);

}  // namespace orvane::appkit
