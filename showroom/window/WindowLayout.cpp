// The panel keeps its width; the desktop takes what is left.
#include "showroom/window/WindowLayout.hpp"

#include <algorithm>
#include <cmath>

#include "showroom/hardware/HardwarePanel.hpp"

namespace orvane::showroom {

WindowLayout::WindowLayout(int width, int height, double windowPixelRatio)
    : pixelRatio(windowPixelRatio) {
  const int beside =
      std::min(width, static_cast<int>(std::lround(HardwarePanel::width * pixelRatio)));
  desktop = {0, 0, width - beside, height};
  panel = {width - beside, 0, beside, height};
}

DesktopLayout WindowLayout::desktopLayout(const std::vector<CGRect>& frames) const {
  return DesktopLayout::fitted(frames, DesktopStyle::monitors, desktop, pixelRatio);
}

}  // namespace orvane::showroom
