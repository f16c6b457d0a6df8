// The blur of shadows and glass: three box blurs, which differ from a Gaussian by at most four of
// 255 levels and whose cost does not depend on the radius.
#pragma once

#include <cairo.h>

namespace orvane::desk {

/// The pixels outside of the picture: transparent, or equal to the nearest edge pixel.
enum class BlurEdge { transparent, extended };

/// The distance in pixels within which a blur with that standard deviation has an effect.
int blurReach(double sigma);

/// Blurs an A8 or ARGB32 image surface in place. `sigma` is the standard deviation in pixels; a
/// value that is not above zero, or a surface of another format, leaves the picture as it is.
void blurSurface(cairo_surface_t* surface, double sigma, BlurEdge edge);

}  // namespace orvane::desk
