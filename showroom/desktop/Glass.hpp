// Glass: the blurred and tinted background of a shape.
#pragma once

#include "Orvane/ui/draw/Appearance.hpp"
#include "Orvane/ui/draw/Shape.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "desk/machine/Appearance.hpp"
#include "showroom/desktop/GlassCache.hpp"

namespace orvane::showroom {

/// Blurs what is already painted inside the shape, with a standard deviation in points, and fills
/// the shape with the tint. Must not be called within a layer of the canvas.
void paintGlass(desk::CairoCanvas& canvas, const ui::Shape& shape, double sigma,
                const ui::Rgba& tint, GlassCache& cache);

/// The tint, opaque under Reduce transparency.
[[nodiscard]] ui::Rgba tintFor(const desk::Appearance& appearance, ui::Rgba tint);

}  // namespace orvane::showroom
