// Gradients, as cairo sources and colour by colour.
#pragma once

#include <cairo.h>

#include "Orvane/ui/draw/Fill.hpp"
#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {

/// A gradient with at least two stops between two points in user space.
PatternPointer gradientOf(const ui::Paint& paint);

/// A solid paint, or a gradient of length zero, which has its last colour everywhere.
[[nodiscard]] bool isOneColor(const ui::Paint& paint);

/// The colour at a fraction of a gradient, not premultiplied. As in cairo, each component is
/// interpolated linearly between stops.
[[nodiscard]] ui::Rgba colorAt(const ui::Paint& paint, double fraction);

/// A vertical gradient.
[[nodiscard]] bool runsDown(const ui::Paint& paint);

}  // namespace orvane::desk
