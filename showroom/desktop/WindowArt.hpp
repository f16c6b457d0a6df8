// Paints windows: shadow, glass or background, title bar, content.
#pragma once

#include "desk/canvas/CairoCanvas.hpp"
#include "desk/windows/DeskWindow.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/Glass.hpp"

namespace orvane::showroom {

/// The reach of a window's shadow beyond its frame, in points.
inline constexpr double windowShadowReach = 60;

/// Paints a visible window on a canvas in global coordinates that already has what is behind it.
void paintWindow(desk::CairoCanvas& canvas, desk::WindowServer& server, desk::DeskWindow& window,
                 GlassCache& glass);

/// Updates a view and paints it with its top left corner at `corner`, in global coordinates.
void paintView(desk::CairoCanvas& canvas, desk::WindowServer& server, desk::HostedView& view,
               ui::Point corner);

/// The tint of a window's glass.
[[nodiscard]] ui::Rgba glassTint(bool isDark);
/// The tint of a menu's glass; in dark mode lighter than a window's.
[[nodiscard]] ui::Rgba menuTint(bool isDark);
/// The edge of menus and tooltips: a dark line, and in dark mode a light line within it.
void paintMenuEdge(desk::CairoCanvas& canvas, const ui::Shape& shape, bool isDark);
/// The blur of a window's glass: a standard deviation in points.
inline constexpr double windowGlassSigma = 24;

}  // namespace orvane::showroom
