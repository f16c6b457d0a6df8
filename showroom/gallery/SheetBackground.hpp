// The backgrounds of the components of a sheet.
#pragma once

#include "Orvane/ui/draw/Appearance.hpp"
#include "Orvane/ui/draw/Shape.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "showroom/gallery/GallerySheet.hpp"

namespace orvane::showroom {

/// Whether each component is shown in its own window.
[[nodiscard]] bool isWholeWindow(GallerySheet::Background background);

/// The outline of the background.
[[nodiscard]] ui::Shape backgroundShape(GallerySheet::Background background, const ui::Rect& rect);

/// Paints the background of the window or menu that has the components, over the wallpaper; for a
/// whole window only its glass.
void paintBackground(desk::CairoCanvas& canvas, GallerySheet::Background background,
                     const ui::Rect& rect, const ui::Appearance& appearance,
                     desk::DrawingResources& resources);

}  // namespace orvane::showroom
