// A picture of the tour: the desk on its table, and the step's line below it.
#pragma once

#include <string>

#include "desk/canvas/CairoPointers.hpp"
#include "desk/canvas/DrawingResources.hpp"
#include "showroom/desktop/DesktopPainter.hpp"
#include "showroom/desktop/DesktopScene.hpp"

namespace orvane::showroom {

/// All pictures have the same size, whatever stands on the desk.
desk::SurfacePointer renderTourPicture(DesktopPainter& painter, desk::DrawingResources& resources,
                                       const DesktopScene& scene, const std::string& number,
                                       const std::string& line);

/// What a rectangle of the desktop shows, in global coordinates, at two pixels per point and
/// without a line.
desk::SurfacePointer renderCloseUp(DesktopPainter& painter, const DesktopScene& scene,
                                   const CGRect& area);

}  // namespace orvane::showroom
