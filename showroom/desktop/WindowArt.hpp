// How windows look: shadow, glass, background, title bar, content.
#pragma once

#include "desk/canvas/CairoCanvas.hpp"
#include "desk/windows/DeskWindow.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/GlassCache.hpp"

namespace orvane::showroom {

/// How far a window's shadow reaches beyond its frame, in points.
inline constexpr double windowShadowReach = 60;

/// Paints a visible window where it is; the canvas is in global coordinates and holds what lies
/// behind it.
void paintWindow(desk::CairoCanvas& canvas, desk::WindowServer& server, desk::DeskWindow& window,
                 GlassCache& glass);

/// Paints an up-to-date view with its top left at a place in global coordinates, on whole pixels.
void paintView(desk::CairoCanvas& canvas, desk::WindowServer& server, desk::HostedView& view,
               ui::Point corner);

/// The thin veil over the blurred background that makes it glass.
[[nodiscard]] ui::Rgba glassTint(bool isDark);
/// Lighter than a window's glass in the dark: a menu stands out from what it lies on.
[[nodiscard]] ui::Rgba menuTint(bool isDark);
/// The edge of what lies above everything: a dark line around it, and in the dark, where that is
/// lost on a dark wallpaper, a light one within.
void paintMenuEdge(desk::CairoCanvas& canvas, const ui::Shape& shape, bool isDark);
inline constexpr double glassSigma = 24;

}  // namespace orvane::showroom
