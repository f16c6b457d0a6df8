// The layers of the desktop's picture. Each function paints one part of one display.
#pragma once

#include <cstddef>

#include "Orvane/ui/layout/Rect.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/CairoPointers.hpp"
#include "desk/canvas/DrawingResources.hpp"
#include "showroom/desktop/DesktopScene.hpp"
#include "showroom/desktop/Glass.hpp"

namespace orvane::showroom {

/// The display that is being painted. The canvas is in global coordinates, clipped to the screen.
struct DisplayCanvas {
  desk::CairoCanvas& canvas;
  desk::DrawingResources& resources;
  GlassCache& glass;
  desk::Cache<desk::SurfacePointer>& wallpapers;
  /// The display's index in the machine's list, and its frame in global coordinates.
  std::size_t displayIndex;
  ui::Rect frame;
  /// The screen in pixels of the canvas's surface.
  cairo_rectangle_int_t pixels;
};

void paintWallpaperLayer(const DesktopScene& scene, const DisplayCanvas& display);
void paintWindowLayer(const DesktopScene& scene, const DisplayCanvas& display);
/// The Dock on its display, also while it slides.
void paintDockLayer(const DesktopScene& scene, const DisplayCanvas& display);
/// Menu titles, status icons and the clock.
void paintMenuBarLayer(const DesktopScene& scene, const DisplayCanvas& display);
/// The windows above the menu bar.
void paintHighWindowLayer(const DesktopScene& scene, const DisplayCanvas& display);
/// The open menu, the tooltip and a dragged file.
void paintOpenMenuLayer(const DesktopScene& scene, const DisplayCanvas& display);
/// The guard's trigger zones with the direction of their nudge, and the last movement that was
/// moved back.
void paintZoneLayer(const DesktopScene& scene, const DisplayCanvas& display);
void paintPointerLayer(const DesktopScene& scene, const DisplayCanvas& display);

}  // namespace orvane::showroom
