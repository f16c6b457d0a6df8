// DesktopPainter draws the whole desk: every display with what is on its screen, layer by layer.
#pragma once

#include <memory>
#include <vector>

#include <cairo.h>

#include "desk/canvas/DrawingResources.hpp"
#include "showroom/desktop/DesktopLayer.hpp"
#include "showroom/desktop/DesktopLayout.hpp"
#include "showroom/desktop/DesktopScene.hpp"

namespace orvane::showroom {

/// Keeps what is dear to draw, so one painter should serve for many pictures.
class DesktopPainter {
 public:
  /// The resources have to outlive the painter.
  explicit DesktopPainter(desk::DrawingResources& resources);

  /// Paints the layout's pixels of an ARGB32 image surface. The layout must have been made from
  /// the displays that the machine has now.
  void paint(cairo_surface_t* surface, const DesktopLayout& layout, const DesktopScene& scene);

 private:
  void paintScreen(cairo_surface_t* surface, const DesktopLayout& layout, const DesktopScene& scene,
                   std::size_t index);

  desk::DrawingResources& resources_;
  GlassCache glass_;
  /// From the back to the front.
  std::vector<std::unique_ptr<DesktopLayer>> layers_;
};

}  // namespace orvane::showroom
