// DesktopFixture gives each test two small displays side by side with the application, and pictures
// of them at one pixel per point, so that global coordinates are pixels.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "Orvane/ui/layout/Rect.hpp"
#include "showroom/desktop/DesktopPicture.hpp"
#include "tests/support/ApplicationFixture.hpp"
#include "tests/support/Pixels.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane::showroom {

class DesktopFixture : public ApplicationFixture {
 protected:
  static constexpr ui::Rect firstFrame{0, 0, 800, 500};
  static constexpr ui::Rect secondFrame{800, 0, 800, 500};

  DesktopFixture() {
    attach(1, firstFrame);
    attach(2, secondFrame);
    machine.permission.setTrusted(true);
    application.launch();
    machine.mouse.moveTo({400, 250});
    machine.advance(10);
  }

  void attach(std::uint32_t number, const ui::Rect& frame) {
    // With equal heights, the coordinate systems differ only by the sign of y.
    desk::attach(machine, desk::displayOf(number, "Display " + std::to_string(number),
                                          {{frame.x, -frame.y}, {frame.width, frame.height}}));
  }

  void setEdge(const std::string& edge) { desk::setDockOrientation(machine, edge); }
  void setAutoHide(bool hides) { desk::setDockAutoHide(machine, hides); }

  desk::SurfacePointer picture(const DesktopScene& scene) {
    return renderDesktop(painter, scene, DesktopStyle::exact, 1);
  }
  desk::SurfacePointer picture() { return picture(DesktopScene(machine, application)); }

  /// The number of pixels in the rectangle that differ by more than 2 in a component.
  static int differences(const desk::SurfacePointer& first, const desk::SurfacePointer& second,
                         const ui::Rect& rect) {
    int count = 0;
    for (int y = static_cast<int>(rect.y); y < static_cast<int>(rect.bottom()); ++y) {
      for (int x = static_cast<int>(rect.x); x < static_cast<int>(rect.right()); ++x) {
        const int difference = desk::greatestDifference(desk::pixelAt(first.get(), x, y),
                                                        desk::pixelAt(second.get(), x, y));
        count += difference > 2 ? 1 : 0;
      }
    }
    return count;
  }
  static int differences(const desk::SurfacePointer& first, const desk::SurfacePointer& second) {
    return differences(first, second,
                       {0, 0, static_cast<double>(cairo_image_surface_get_width(first.get())),
                        static_cast<double>(cairo_image_surface_get_height(first.get()))});
  }

  desk::DrawingResources resources;
  DesktopPainter painter{resources};
};

}  // namespace orvane::showroom
