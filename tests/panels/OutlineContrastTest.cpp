// Controls can be told from what they lie on, and menus from the wallpaper: measured from the
// pixels of the desktop, in both appearances, over every wallpaper.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <tuple>

#include <gtest/gtest.h>

#include "showroom/desktop/DesktopPicture.hpp"
#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

using Paper = desk::Appearance::Wallpaper;

class OutlineContrastTest : public PanelFixture,
                            public testing::WithParamInterface<std::tuple<bool, Paper, double>> {
 protected:
  OutlineContrastTest() {
    EXPECT_FALSE(machine.displays.detach(3));
    EXPECT_FALSE(machine.displays.detach(2));
    EXPECT_FALSE(machine.displays.setFrame(1, CGRectMake(0, 0, 720, 620)));
    machine.advance(2);
    machine.appearance.isDark = std::get<0>(GetParam());
    machine.appearance.wallpaper = std::get<1>(GetParam());
  }
  void takePicture() {
    machine.advance(1);
    desk::DrawingResources resources;
    showroom::DesktopPainter painter(resources);
    picture_ = showroom::renderDesktop(painter, showroom::DesktopScene(machine, application),
                                       showroom::DesktopStyle::exact, scale());
    ASSERT_TRUE(picture_);
    cairo_surface_flush(picture_.get());
  }
  /// As WCAG 2.1 defines it, at a place in points.
  [[nodiscard]] double luminanceAt(double x, double y) {
    const unsigned char* row =
        cairo_image_surface_get_data(picture_.get()) +
        static_cast<int>(y * scale()) * cairo_image_surface_get_stride(picture_.get());
    const std::uint32_t value =
        reinterpret_cast<const std::uint32_t*>(row)[static_cast<int>(x * scale())];
    const auto linear = [value](unsigned shift) {
      const double component = static_cast<double>(value >> shift & 0xFFU) / 255;
      return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(16) + 0.7152 * linear(8) + 0.0722 * linear(0);
  }
  /// The greatest between the place and what the next three points in this direction show.
  [[nodiscard]] double contrastFrom(ui::Point place, double stepX, double stepY) {
    const double ground = luminanceAt(place.x, place.y);
    double greatest = 1;
    for (double way = 0; way < 3; way += 1 / scale()) {
      const double other = luminanceAt(place.x + way * stepX, place.y + way * stepY);
      greatest =
          std::max(greatest, (std::max(ground, other) + 0.05) / (std::min(ground, other) + 0.05));
    }
    return greatest;
  }

 private:
  [[nodiscard]] static double scale() { return std::get<2>(GetParam()); }

  desk::SurfacePointer picture_;
};

TEST_P(OutlineContrastTest, OfASwitchThatIsOffAndOfTheMenu) {
  ASSERT_TRUE(server().menus.openStatusMenu(0));
  takePicture();
  server().menus.layOut();
  const CGRect row = server().menus.rows().front().frame;
  // The switch is 18 points high and ends 8 points before the row; its knob is at the left.
  EXPECT_GE(contrastFrom({CGRectGetMaxX(row) - 18, CGRectGetMidY(row) - 11}, 0, 1), 3);
  const CGRect menu = server().menus.frame();
  EXPECT_GE(contrastFrom({menu.origin.x - 1.5, CGRectGetMidY(menu)}, 1, 0), 1.4);
  server().menus.close();
}

TEST_P(OutlineContrastTest, OfAPicker) {
  openSettings();
  takePicture();
  int pickers = 0;
  for (const desk::SurfaceControl& control : desk::Surfaces(server()).controls(settingsPanel)) {
    if (control.node.role == ui::Role::popUpButton) {
      ++pickers;
      EXPECT_GE(contrastFrom({CGRectGetMidX(control.frame), control.frame.origin.y - 1.5}, 0, 1),
                3);
    }
  }
  EXPECT_EQ(pickers, 2);
}

INSTANTIATE_TEST_SUITE_P(Everywhere, OutlineContrastTest,
                         testing::Combine(testing::Bool(),
                                          testing::Values(Paper::standard, Paper::white,
                                                          Paper::black, Paper::busy),
                                          testing::Values(1.0, 2.0)));

}  // namespace
}  // namespace orvane
