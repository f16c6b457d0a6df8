// The two font families of the desk. Text looks the same whatever other fonts and rules a machine
// has, and a missing family is reported instead of substituted.
#pragma once

#include <optional>
#include <string>

#include <pango/pango.h>

namespace orvane::desk {

/// The interface font, in place of the Mac's: the display cut of Inter, because the text cut is
/// wider than the Mac's font.
inline constexpr const char* systemFontFamily = "Inter Display";
/// The font of Chinese text.
inline constexpr const char* chineseFontFamily = "Noto Sans CJK SC";

/// None when all required faces are installed. Otherwise a message for the user with the missing
/// faces and their packages. To be called at the start of a program that draws.
std::optional<std::string> missingFontsMessage();

/// The font map with only the pinned families, at one pixel per point, for the life of the process.
/// When a font is missing, it writes the message to the error stream and ends the process.
PangoFontMap* pinnedFontMap();

}  // namespace orvane::desk
