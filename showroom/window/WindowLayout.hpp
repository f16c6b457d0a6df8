// How the desk's window is divided: the desktop at the left, the hardware panel at the
// right.
#pragma once

#include <vector>

#include <cairo.h>

#include "Orvane/platform/Quartz.hpp"
#include "showroom/desktop/DesktopLayout.hpp"

namespace orvane::showroom {

/// All in pixels of the window's drawing area.
struct WindowLayout {
  cairo_rectangle_int_t desktop{};
  cairo_rectangle_int_t panel{};
  /// Pixels per point of the window itself: 2 on a high-density display.
  double pixelRatio = 1;

  WindowLayout(int width, int height, double windowPixelRatio);
  /// The displays in the desktop's part.
  [[nodiscard]] DesktopLayout desktopLayout(const std::vector<CGRect>& frames) const;
};

}  // namespace orvane::showroom
