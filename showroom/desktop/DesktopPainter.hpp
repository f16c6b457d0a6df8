// DesktopPainter draws every display of the desk, layer by layer.
#pragma once

#include <cairo.h>

#include "desk/canvas/DrawingResources.hpp"
#include "showroom/desktop/DesktopLayers.hpp"
#include "showroom/desktop/DesktopLayout.hpp"
#include "showroom/desktop/DesktopScene.hpp"

namespace orvane::showroom {

/// Caches expensive drawings, so use one painter for many pictures.
class DesktopPainter {
 public:
  /// The resources must outlive the painter.
  explicit DesktopPainter(desk::DrawingResources& resources) : resources_(resources) {}

  /// Paints the layout's pixels of an ARGB32 image surface. The layout must be made from the
  /// machine's present displays.
  void paint(cairo_surface_t* surface, const DesktopLayout& layout, const DesktopScene& scene);

 private:
  void paintScreen(cairo_surface_t* surface, const DesktopLayout& layout, const DesktopScene& scene,
                   std::size_t index);

  desk::DrawingResources& resources_;
  GlassCache glass_;
  /// Resizing the window adds sizes until all are dropped.
  desk::Cache<desk::SurfacePointer> wallpapers_{std::size_t{64} << 20U};
};

}  // namespace orvane::showroom
