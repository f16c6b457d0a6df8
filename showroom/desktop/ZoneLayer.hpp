// ZoneLayer marks the guard's trigger zones, each with the direction in which it moves the pointer,
// and the movement that was just moved back.
#pragma once

#include "showroom/desktop/DesktopLayer.hpp"

namespace orvane::showroom {

class ZoneLayer : public DesktopLayer {
 public:
  void paint(const DesktopScene& scene, const DisplayCanvas& display) override;
};

}  // namespace orvane::showroom
