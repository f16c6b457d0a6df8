// The tour: a demonstration of Orvane on the simulated Mac, in captioned pictures.
#pragma once

#include <string>

namespace orvane::showroom {

/// Writes a numbered picture of each step into the directory, which is created if necessary, and
/// prints its caption. Returns the exit status: 0; 1 if a caption is not true of the machine; 2 if
/// a picture cannot be written or a font is missing. The same program writes the same bytes.
int runTour(const std::string& directory);

}  // namespace orvane::showroom
