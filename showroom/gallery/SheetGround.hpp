// What the components of a sheet lie on.
#pragma once

#include "Orvane/ui/draw/Appearance.hpp"
#include "Orvane/ui/draw/Shape.hpp"
#include "Orvane/ui/draw/TextMeasurer.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "showroom/gallery/GallerySheet.hpp"

namespace orvane::showroom {

/// Whether each component on such a ground is a window of its own.
[[nodiscard]] bool isWholeWindow(GallerySheet::Ground ground);

/// The outline of the ground.
[[nodiscard]] ui::Shape groundShape(GallerySheet::Ground ground, const ui::Rect& rect);

/// Paints the ground into the rectangle, over the wallpaper that is there already, as the window
/// or the menu has it that the components belong to; under a whole window its glass alone.
void paintGround(desk::CairoCanvas& canvas, GallerySheet::Ground ground, const ui::Rect& rect,
                 const ui::Appearance& appearance, ui::TextMeasurer& text,
                 desk::DrawingResources& resources);

}  // namespace orvane::showroom
