// MenuBarLayer paints the menu bar of each display: menu titles at the left, the application's
// status icon and the clock at the right.
#pragma once

#include "showroom/desktop/DesktopLayer.hpp"

namespace orvane::showroom {

class MenuBarLayer : public DesktopLayer {
 public:
  /// In points.
  static constexpr double height = 24;

  /// Where the status icon is on a display with this frame, in global coordinates: the area that
  /// lights up when it is pressed.
  static ui::Rect statusItemFrame(const ui::Rect& displayFrame);

  void paint(const DesktopScene& scene, const DisplayCanvas& display) override;
};

}  // namespace orvane::showroom
