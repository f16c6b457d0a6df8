// Cairo's surfaces in memory.
#pragma once

#include <string>

#include "Orvane/ui/layout/Rect.hpp"
#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {

/// In pixels. Clear; black without an alpha channel.
[[nodiscard]] SurfacePointer imageSurface(int width, int height,
                                          cairo_format_t format = CAIRO_FORMAT_ARGB32);
/// Large enough for a size in points.
[[nodiscard]] SurfacePointer imageSurface(ui::Size size, double scale = 1);

/// A copy of the pixels of a rectangle; clear outside of the picture.
[[nodiscard]] SurfacePointer partOf(cairo_surface_t* picture, int x, int y, int width, int height,
                                    cairo_format_t format = CAIRO_FORMAT_ARGB32);

/// The width and the pixels of an image surface, to compare it.
[[nodiscard]] std::string contentOf(cairo_surface_t* picture);

}  // namespace orvane::desk
