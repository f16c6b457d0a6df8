// The soft blur behind shadows and glass: three box blurs, which together stay within four of 255
// levels of a Gaussian and do not cost more when they reach further.
#pragma once

#include <cairo.h>

namespace orvane::desk {

/// What a blur finds outside the picture: nothing, or the nearest pixel of its edge.
enum class BlurEdge { transparent, extended };

/// How far in pixels a blur of that standard deviation carries a pixel.
int blurReach(double sigma);

/// Blurs an A8 or ARGB32 image surface in place. `sigma` is the standard deviation in pixels; a
/// value that is not above zero, or a surface of another format, leaves the picture as it is.
void blurSurface(cairo_surface_t* surface, double sigma, BlurEdge edge);

/// Blurs the part of an ARGB32 or A8 image surface that the pixel rectangle covers, as glass does
/// with what lies behind it. Pixels outside the rectangle stay as they are, but those near it
/// take part in the blur. A rectangle that leaves the surface is cut to it.
void blurRegion(cairo_surface_t* surface, const cairo_rectangle_int_t& region, double sigma);

}  // namespace orvane::desk
