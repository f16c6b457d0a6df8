// The surroundings of the screens: monitors and laptops in the `monitors` style, otherwise a plain
// background.
#pragma once

#include <cairo.h>

#include "desk/canvas/DrawingResources.hpp"
#include "showroom/desktop/DesktopLayout.hpp"
#include "showroom/desktop/DesktopScene.hpp"

namespace orvane::showroom {

/// Paints all of the layout's pixels, before the screens are painted.
void paintSurroundings(cairo_surface_t* surface, const DesktopLayout& layout,
                       const DesktopScene& scene, desk::DrawingResources& resources);

}  // namespace orvane::showroom
