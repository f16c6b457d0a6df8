// Gradients as cairo's source; those that run straight down are computed once for all columns.
#pragma once

#include <cairo.h>

#include "Orvane/ui/draw/Paint.hpp"
#include "Orvane/ui/layout/Rect.hpp"
#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {

/// A gradient of at least two stops between two places of the user space.
PatternPointer gradientOf(const ui::Paint& paint);

/// A solid one, or a gradient without a way from start to end, which has its last colour
/// everywhere.
[[nodiscard]] bool isOneColor(const ui::Paint& paint);

/// The colour at a fraction of the way from the start to the end of a gradient, not premultiplied.
/// As cairo has it, red, green, blue and alpha each go straight from stop to stop.
[[nodiscard]] ui::Rgba colorAt(const ui::Paint& paint, double fraction);

[[nodiscard]] bool runsDown(const ui::Paint& paint);

/// A gradient that runs down as `height` rows of one pixel, from row `top` of a device to which the
/// matrix leads. Each row of pixels has one colour.
SurfacePointer gradientRows(const ui::Paint& paint, const cairo_matrix_t& matrix, int top,
                            int height);

/// Makes a gradient that runs down the source for what is painted within `area`, in pixels of the
/// context's device: its rows, which cairo repeats across.
void setGradientRows(cairo_t* context, const ui::Paint& paint, const ui::Rect& area);

}  // namespace orvane::desk
