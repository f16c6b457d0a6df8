// WindowLayer paints the windows below the Dock and the menu bar, or those above.
#pragma once

#include "showroom/desktop/DesktopLayer.hpp"

namespace orvane::showroom {

class WindowLayer : public DesktopLayer {
 public:
  enum class Part { belowMenuBar, aboveMenuBar };

  explicit WindowLayer(Part part) : part_(part) {}

  void paint(const DesktopScene& scene, const DisplayCanvas& display) override;

 private:
  Part part_;
};

}  // namespace orvane::showroom
