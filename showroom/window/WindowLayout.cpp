// The panel has a fixed width; the desktop has the rest.
#include "showroom/window/WindowLayout.hpp"

#include <algorithm>
#include <cmath>

#include "showroom/hardware/HardwarePanel.hpp"

namespace orvane::showroom {

WindowLayout::WindowLayout(int width, int height, double windowPixelRatio)
    : pixelRatio(windowPixelRatio) {
  const int panelWidth =
      std::min(width, static_cast<int>(std::lround(HardwarePanel::width * pixelRatio)));
  desktop = {0, 0, width - panelWidth, height};
  panel = {width - panelWidth, 0, panelWidth, height};
}

DesktopLayout WindowLayout::desktopLayout(const std::vector<CGRect>& frames) const {
  return DesktopLayout::fitted(frames, DesktopStyle::monitors, desktop, pixelRatio);
}

}  // namespace orvane::showroom
