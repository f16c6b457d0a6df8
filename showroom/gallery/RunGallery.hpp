// The gallery: every component of the application in every state, as pictures to look at.
#pragma once

#include <string>

namespace orvane::showroom {

/// Writes every sheet, light and dark, each also with Increase Contrast, into the directory, which
/// is made if it is not there, and prints the name of each file. Returns the exit status of the
/// program: 0, or 2 when a picture cannot be written or a font is missing. The same program writes
/// the same bytes.
int runGallery(const std::string& directory);

}  // namespace orvane::showroom
