// The desk's wallpapers, drawn by code: an own landscape by day and by night, plain white and
// black, and a busy pattern against which everything must stay legible.
#pragma once

#include <cairo.h>

#include "desk/machine/Appearance.hpp"

namespace orvane::showroom {

/// Fills `width` by `height` units of the context from the origin. The same arguments give the same
/// picture.
void paintWallpaper(cairo_t* context, desk::Appearance::Wallpaper wallpaper, bool isDark,
                    double width, double height);

}  // namespace orvane::showroom
