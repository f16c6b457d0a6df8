// Painting with alpha, a blend mode and a shadow, none of which cairo has for a single shape.
#pragma once

#include <functional>

#include "tests/gnustep/shim/DrawingContext.hpp"

namespace orvane::gnustep {

cairo_matrix_t matrixFrom(const CGAffineTransform& transform);

/// An image surface of the context's size and at its place in the device; the caller owns it.
cairo_surface_t* surfaceLike(const OrvaneShimContext* context);

/// `draw` paints with the current path and matrix of the context's cairo, perhaps twice and
/// elsewhere; what the graphics state says is added here.
void paint(OrvaneShimContext* context, const std::function<void(cairo_t*)>& draw);

}  // namespace orvane::gnustep
