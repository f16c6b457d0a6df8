// Painting with alpha, a blend mode and a shadow, which cairo does not support for a single shape.
#pragma once

#include <functional>

#include "tests/gnustep/shim/DrawingContext.hpp"

namespace orvane::gnustep {

cairo_matrix_t matrixFrom(const CGAffineTransform& transform);

/// An image surface with the context's size and device offset; the caller owns it.
cairo_surface_t* surfaceLike(const OrvaneShimContext* context);

/// Applies the graphics state to what `draw` paints. `draw` is called with the context's current
/// path and matrix, possibly twice and on other surfaces.
void paint(OrvaneShimContext* context, const std::function<void(cairo_t*)>& draw);

}  // namespace orvane::gnustep
