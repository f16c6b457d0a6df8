// DockLayer paints the Dock on the display that it lives on, wherever in its slide it is.
#pragma once

#include "showroom/desktop/DesktopLayer.hpp"

namespace orvane::showroom {

class DockLayer : public DesktopLayer {
 public:
  void paint(const DesktopScene& scene, const DisplayCanvas& display) override;
};

}  // namespace orvane::showroom
