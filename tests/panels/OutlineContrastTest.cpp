// The contrast of controls with their background and of menus with the wallpaper, measured from the
// pixels of the desktop in both appearances over every wallpaper.
#include <algorithm>
#include <tuple>

#include <gtest/gtest.h>

#include "showroom/desktop/DesktopPicture.hpp"
#include "tests/panels/PanelFixture.hpp"
#include "tests/support/Contrast.hpp"

namespace orvane {
namespace {

using Paper = desk::Appearance::Wallpaper;

class OutlineContrastTest : public PanelFixture,
                            public testing::WithParamInterface<std::tuple<bool, Paper, double>> {
 protected:
  OutlineContrastTest() {
    useSmallDisplay();
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
  [[nodiscard]] double luminanceAt(ui::Point point) {
    return luminance(pixelAt(picture_.get(), static_cast<int>(point.x * scale()),
                             static_cast<int>(point.y * scale())));
  }
  /// The greatest contrast between the point and the next three points in a direction.
  [[nodiscard]] double contrastFrom(ui::Point point, ui::Point direction) {
    const double start = luminanceAt(point);
    double greatest = 1;
    for (double way = 0; way < 3; way += 1 / scale()) {
      const ui::Point other{point.x + way * direction.x, point.y + way * direction.y};
      greatest = std::max(greatest, contrast(start, luminanceAt(other)));
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
  EXPECT_GE(contrastFrom({CGRectGetMaxX(row) - 18, CGRectGetMidY(row) - 11}, {0, 1}), 3);
  const CGRect menu = server().menus.frame();
  EXPECT_GE(contrastFrom({menu.origin.x - 1.5, CGRectGetMidY(menu)}, {1, 0}), 1.4);
  server().menus.close();
}

TEST_P(OutlineContrastTest, OfAPicker) {
  openSettings();
  takePicture();
  int pickers = 0;
  for (const desk::SurfaceControl& control : desk::Surfaces(server()).controls(settingsPanel)) {
    if (control.node.role == ui::Role::popUpButton) {
      ++pickers;
      EXPECT_GE(contrastFrom({CGRectGetMidX(control.frame), control.frame.origin.y - 1.5}, {0, 1}),
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
