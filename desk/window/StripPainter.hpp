// Paints the strip below the desktop.
#pragma once

#include "Orvane/ui/Rect.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/DrawingResources.hpp"
#include "desk/window/StripContent.hpp"

namespace orvane::desk {

/// The strip's height in points.
inline constexpr double stripHeight = 128;

/// Fills the rectangle, in points of the canvas.
void paintStrip(CairoCanvas& canvas, DrawingResources& resources, const ui::Rect& rect,
                const StripContent& content);

}  // namespace orvane::desk
