// The two type families of the desk and nothing else: whatever other fonts or rules a machine has,
// text comes out the same, and a family that is not installed is reported instead of replaced.
#pragma once

#include <optional>
#include <string>

#include <pango/pango.h>

namespace orvane::desk {

/// The face of the interface, in place of the Mac's own: Inter as it is spaced for displays,
/// because spaced for reading it is wider than the Mac's.
inline constexpr const char* systemFontFamily = "Inter Display";
/// The face of Chinese text.
inline constexpr const char* chineseFontFamily = "Noto Sans CJK SC";

/// Empty when every face the desk draws with is installed. Otherwise one message for the user,
/// which names what is missing and the packages that bring it. Call it at the start of a program
/// that draws.
std::optional<std::string> missingFontsMessage();

/// The font map that knows only the pinned families, at one pixel to the point. It is made at the
/// first use and lives as long as the process. When a font is missing, this writes the message to
/// the error stream and ends the process: text in another face would be a wrong picture.
PangoFontMap* pinnedFontMap();

}  // namespace orvane::desk
