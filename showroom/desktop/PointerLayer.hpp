// PointerLayer paints the pointer.
#pragma once

#include "showroom/desktop/DesktopLayer.hpp"

namespace orvane::showroom {

class PointerLayer : public DesktopLayer {
 public:
  void paint(const DesktopScene& scene, const DisplayCanvas& display) override;
};

}  // namespace orvane::showroom
