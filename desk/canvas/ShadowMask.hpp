// The blurred coverage of a shape, for its shadow.
#pragma once

#include "Orvane/ui/draw/Shape.hpp"
#include "desk/canvas/Mask.hpp"

namespace orvane::desk {

/// Adds the outline of a shape to the path of a context, in its current coordinates.
void appendShape(cairo_t* context, const ui::Shape& shape);

/// A shape blurred with a standard deviation, without another shape, all in pixels. The mask's
/// anchor is the origin. An empty shape has a mask without a surface.
Mask makeShadowMask(const ui::Shape& shape, double sigma, const ui::Shape& hole);

/// The alpha of an ARGB32 image surface, as an A8 surface of the same size; `x` and `y` are the
/// position of its top left pixel.
SurfacePointer coverageOf(cairo_surface_t* picture, int x, int y);

}  // namespace orvane::desk
