// The images of the application's bundle.
#pragma once

#include "desk/canvas/ImageLibrary.hpp"

namespace orvane::desk {

/// Adds all of them, with their sizes in points. They are decoded once per process.
void addApplicationImages(ImageLibrary& images);

}  // namespace orvane::desk
