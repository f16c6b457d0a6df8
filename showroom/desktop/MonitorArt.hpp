// What surrounds the screens: in the monitors style a table with a monitor or a laptop around each
// screen, else nothing but a ground.
#pragma once

#include <cairo.h>

#include "desk/canvas/DrawingResources.hpp"
#include "showroom/desktop/DesktopLayout.hpp"
#include "showroom/desktop/DesktopScene.hpp"

namespace orvane::showroom {

/// Paints all of the layout's pixels; the screens themselves are painted over it afterwards.
void paintSurroundings(cairo_surface_t* surface, const DesktopLayout& layout,
                       const DesktopScene& scene, desk::DrawingResources& resources);

}  // namespace orvane::showroom
