// The gallery: pictures of every component of the application in every state.
#pragma once

#include <string>

namespace orvane::showroom {

/// Writes every sheet, light and dark, without and with Increase Contrast, into the directory,
/// which is created if necessary, and prints the name of each file. Returns the exit status: 0, or
/// 2 if a picture cannot be written or a font is missing. The same program writes the same bytes.
int runGallery(const std::string& directory);

}  // namespace orvane::showroom
