// OpenMenuLayer paints what lies above all windows for a moment: the open menu, the tooltip, and
// what is being dragged.
#pragma once

#include "showroom/desktop/DesktopLayer.hpp"

namespace orvane::showroom {

class OpenMenuLayer : public DesktopLayer {
 public:
  void paint(const DesktopScene& scene, const DisplayCanvas& display) override;
};

}  // namespace orvane::showroom
