// Glass: the blurred and tinted background of a shape.
#pragma once

#include "Orvane/ui/draw/Appearance.hpp"
#include "Orvane/ui/draw/Shape.hpp"
#include "desk/canvas/Cache.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "desk/machine/Appearance.hpp"

namespace orvane::showroom {

/// Blurred backgrounds, by their pixels. Each is kept with its background, so half of the memory.
struct GlassCache : desk::Cache<desk::SurfacePointer> {
  GlassCache() : Cache(std::size_t{48} << 20U) {}
};

/// Blurs what is already painted inside the shape, with a standard deviation in points, and fills
/// the shape with the tint. Must not be called within a layer of the canvas.
void paintGlass(desk::CairoCanvas& canvas, const ui::Shape& shape, double sigma,
                const ui::Rgba& tint, GlassCache& cache);

/// The tint, opaque under Reduce transparency.
[[nodiscard]] ui::Rgba tintFor(const desk::Appearance& appearance, ui::Rgba tint);

}  // namespace orvane::showroom
