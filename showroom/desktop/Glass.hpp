// Glass: a blurred and tinted view of what is already painted behind a shape.
#pragma once

#include "Orvane/ui/draw/Appearance.hpp"
#include "Orvane/ui/draw/Shape.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "desk/machine/Appearance.hpp"
#include "showroom/desktop/GlassCache.hpp"

namespace orvane::showroom {

/// Blurs what the canvas holds inside the shape by a standard deviation in points, and lays the
/// tint over it; an opaque tint leaves nothing to blur. Not to be used within a layer of the
/// canvas.
void paintGlass(desk::CairoCanvas& canvas, const ui::Shape& shape, double sigma,
                const ui::Rgba& tint, GlassCache& cache);

/// The tint, opaque when the user wants less transparency.
[[nodiscard]] ui::Rgba tintFor(const desk::Appearance& appearance, ui::Rgba tint);

}  // namespace orvane::showroom
