// What the components of a sheet lie on.
#pragma once

#include "Orvane/ui/TextMeasurer.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "desk/gallery/GallerySheet.hpp"

namespace orvane::desk {

/// Paints the ground into the rectangle, over the wallpaper that is there already, as the window
/// or the menu has it that the components belong to.
void paintGround(CairoCanvas& canvas, GallerySheet::Ground ground, const ui::Rect& rect,
                 bool isDark, ui::TextMeasurer& text, DrawingResources& resources);

}  // namespace orvane::desk
