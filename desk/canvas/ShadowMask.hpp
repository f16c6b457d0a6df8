// The blurred coverage of a shape, which is what its shadow looks like before it has a colour.
#pragma once

#include "Orvane/ui/draw/Shape.hpp"
#include "desk/canvas/MaskCache.hpp"

namespace orvane::desk {

/// Adds the outline of a shape to the path of a context, in its current coordinates.
void appendShape(cairo_t* context, const ui::Shape& shape);

/// The shape, in pixels, blurred by a standard deviation in pixels. The mask is relative to pixel
/// zero, zero. An empty shape gives a mask without a surface.
Mask makeShadowMask(const ui::Shape& shape, double sigma);

/// Takes a shape, in pixels, out of what a mask covers.
void cutOut(Mask& mask, const ui::Shape& shape);

/// What the picture on an ARGB32 image surface covers, as an A8 surface of the same size; `x` and
/// `y` are the surface's own place of its top left pixel.
SurfacePointer coverageOf(cairo_surface_t* picture, int x, int y);

}  // namespace orvane::desk
