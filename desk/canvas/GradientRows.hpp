// Gradients as cairo's source; those that run straight down are computed once for all columns.
#pragma once

#include <cairo.h>

#include "Orvane/ui/Paint.hpp"
#include "Orvane/ui/Rect.hpp"
#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {

/// A gradient of at least two stops between two places of the user space.
PatternPointer gradientOf(const ui::Paint& paint);

[[nodiscard]] bool runsDown(const ui::Paint& paint);

/// A gradient that runs down as `height` rows of one pixel, from row `top` of a device to which the
/// matrix leads. Each row of pixels has one colour.
SurfacePointer gradientRows(const ui::Paint& paint, const cairo_matrix_t& matrix, int top,
                            int height);

/// Makes a gradient that runs down the source for what is painted within `area`, in pixels of the
/// context's device: its rows, which cairo repeats across.
void setGradientRows(cairo_t* context, const ui::Paint& paint, const ui::Rect& area);

}  // namespace orvane::desk
