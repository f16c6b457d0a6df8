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

}  // namespace orvane::desk
