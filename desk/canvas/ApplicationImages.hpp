// The images that the application finds in its bundle.
#pragma once

#include "desk/canvas/ImageLibrary.hpp"

namespace orvane::desk {

/// Adds them all, in their sizes in points. They are decoded once in a process, however many
/// libraries they are added to.
void addApplicationImages(ImageLibrary& images);

}  // namespace orvane::desk
