// WindowLayout divides the desk's window: desktop at the left, hardware panel at the right.
#pragma once

#include <vector>

#include <cairo.h>

#include "Orvane/platform/Quartz.hpp"
#include "showroom/desktop/DesktopLayout.hpp"

namespace orvane::showroom {

/// In pixels of the window's drawing area.
struct WindowLayout {
  cairo_rectangle_int_t desktop{};
  cairo_rectangle_int_t panel{};
  /// Pixels per point of the window, such as 2 on a high-density display.
  double pixelRatio = 1;

  WindowLayout(int width, int height, double windowPixelRatio);
  /// The layout of the displays in the desktop's part.
  [[nodiscard]] DesktopLayout desktopLayout(const std::vector<CGRect>& frames) const;
};

}  // namespace orvane::showroom
