// DesktopLayer paints one part of every display: wallpaper, windows, Dock, menu bar.
#pragma once

#include <cstddef>

#include "Orvane/ui/layout/Rect.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/DrawingResources.hpp"
#include "showroom/desktop/DesktopScene.hpp"
#include "showroom/desktop/GlassCache.hpp"

namespace orvane::showroom {

/// The display that is being painted. The canvas is in global coordinates, clipped to the screen.
struct DisplayCanvas {
  desk::CairoCanvas& canvas;
  desk::DrawingResources& resources;
  GlassCache& glass;
  /// The display's index in the machine's list, and its frame in global coordinates.
  std::size_t displayIndex;
  ui::Rect frame;
  /// The screen in pixels of the canvas's surface.
  cairo_rectangle_int_t pixels;
};

class DesktopLayer {
 public:
  DesktopLayer() = default;
  DesktopLayer(const DesktopLayer&) = delete;
  DesktopLayer& operator=(const DesktopLayer&) = delete;
  virtual ~DesktopLayer() = default;

  /// Called for each display, after the layers below.
  virtual void paint(const DesktopScene& scene, const DisplayCanvas& display) = 0;
};

}  // namespace orvane::showroom
