// The image of a dragged file.
#pragma once

#include "desk/canvas/CairoCanvas.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::showroom {

/// Paints the file's image at the pointer, with a green copy mark over a drop target. A file drag
/// must be active; the canvas is in global coordinates.
void paintFileDrag(desk::CairoCanvas& canvas, desk::WindowServer& server);

}  // namespace orvane::showroom
