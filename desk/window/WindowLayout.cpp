// The strip keeps its height; the desktop takes what is left.
#include "desk/window/WindowLayout.hpp"

#include <algorithm>
#include <cmath>

#include "desk/window/StripPainter.hpp"

namespace orvane::desk {

WindowLayout::WindowLayout(int width, int height, double windowPixelRatio)
    : pixelRatio(windowPixelRatio) {
  const int below = std::min(height, static_cast<int>(std::lround(stripHeight * pixelRatio)));
  desktop = {0, 0, width, height - below};
  strip = {0, height - below, width, below};
}

DesktopLayout WindowLayout::desktopLayout(const std::vector<CGRect>& frames) const {
  return DesktopLayout::fitted(frames, DesktopStyle::monitors, desktop, pixelRatio);
}

}  // namespace orvane::desk
