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

  /// Adds a layer above the wallpaper and what was added so, below the Dock and the menu bar: the
  /// place of windows.
  void addAboveWallpaper(std::unique_ptr<DesktopLayer> layer);
  /// Adds a layer above the menu bar, below the marks and the pointer: the place of open menus.
  void addAboveMenuBar(std::unique_ptr<DesktopLayer> layer);

  /// Paints the layout's pixels of an ARGB32 image surface. The layout must have been made from
  /// the displays that the machine has now.
  void paint(cairo_surface_t* surface, const DesktopLayout& layout, const DesktopScene& scene);

 private:
  using Layers = std::vector<std::unique_ptr<DesktopLayer>>;

  void paintScreen(cairo_surface_t* surface, const DesktopLayout& layout, const DesktopScene& scene,
                   std::size_t index);

  desk::DrawingResources& resources_;
  GlassCache glass_;
  Layers backdrop_;
  Layers windows_;
  Layers system_;
  Layers menus_;
  Layers marks_;
};

}  // namespace orvane::showroom
