// How a file on its way from one window to another looks.
#pragma once

#include "desk/canvas/CairoCanvas.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::showroom {

/// Paints the image at the pointer, and the green mark of a copy where the file would be taken.
/// There must be a drag; the canvas is in global coordinates.
void paintFileDrag(desk::CairoCanvas& canvas, desk::WindowServer& server);

}  // namespace orvane::showroom
