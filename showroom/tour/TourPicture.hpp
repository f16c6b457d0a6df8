// Pictures of the tour: the desk with a caption, and close-ups.
#pragma once

#include <string>

#include "desk/canvas/CairoPointers.hpp"
#include "desk/canvas/DrawingResources.hpp"
#include "showroom/desktop/DesktopPainter.hpp"
#include "showroom/desktop/DesktopScene.hpp"

namespace orvane::showroom {

/// The desk in the `monitors` style with a numbered caption; always of the same size.
desk::SurfacePointer renderTourPicture(DesktopPainter& painter, desk::DrawingResources& resources,
                                       const DesktopScene& scene, const std::string& number,
                                       const std::string& caption);

/// An area of the desktop, in global coordinates, at two pixels per point.
desk::SurfacePointer renderCloseUp(DesktopPainter& painter, const DesktopScene& scene,
                                   const CGRect& area);

}  // namespace orvane::showroom
