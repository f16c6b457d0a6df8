// The desk's wallpapers, drawn by code: a landscape by day and night, white, black, and a busy
// pattern as a worst case for legibility.
#pragma once

#include <cairo.h>

#include "desk/machine/Appearance.hpp"

namespace orvane::showroom {

/// Fills a rectangle of `width` by `height` units at the origin. Equal arguments give equal
/// pictures.
void paintWallpaper(cairo_t* context, desk::Appearance::Wallpaper wallpaper, bool isDark,
                    double width, double height);

}  // namespace orvane::showroom
