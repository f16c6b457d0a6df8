// Gradients as cairo sources; a vertical gradient is computed once for all columns.
#pragma once

#include <cairo.h>

#include "Orvane/ui/draw/Fill.hpp"
#include "Orvane/ui/layout/Rect.hpp"
#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {

/// A gradient with at least two stops between two points in user space.
PatternPointer gradientOf(const ui::Paint& paint);

/// A solid paint, or a gradient of length zero, which has its last colour everywhere.
[[nodiscard]] bool isOneColor(const ui::Paint& paint);

/// The colour at a fraction of a gradient, not premultiplied. As in cairo, each component is
/// interpolated linearly between stops.
[[nodiscard]] ui::Rgba colorAt(const ui::Paint& paint, double fraction);

[[nodiscard]] bool runsDown(const ui::Paint& paint);

/// The `height` rows of a vertical gradient, one pixel wide, from row `top` of the device space of
/// the matrix.
SurfacePointer gradientRows(const ui::Paint& paint, const cairo_matrix_t& matrix, int top,
                            int height);

}  // namespace orvane::desk
