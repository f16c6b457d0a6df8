// The division of the window.
#include <gtest/gtest.h>

#include "showroom/hardware/HardwarePanel.hpp"
#include "showroom/window/WindowLayout.hpp"

namespace orvane::showroom {
namespace {

TEST(WindowLayoutTest, ThePanelHasAFixedWidthAndTheDesktopTheRest) {
  for (const double ratio : {1.0, 1.5, 2.0}) {
    const WindowLayout layout(1400, 900, ratio);
    EXPECT_EQ(layout.panel.width, static_cast<int>(HardwarePanel::width * ratio));
    EXPECT_EQ(layout.desktop.width + layout.panel.width, 1400);
    EXPECT_EQ(layout.panel.x, layout.desktop.width);
    EXPECT_EQ(layout.desktop.height, 900);
    EXPECT_EQ(layout.panel.height, 900);
  }
}

TEST(WindowLayoutTest, DoesNotEnlargeDisplays) {
  const std::vector<CGRect> frames{CGRectMake(0, 0, 640, 400)};
  EXPECT_DOUBLE_EQ(WindowLayout(3000, 2000, 1).desktopLayout(frames).scale(), 1);
  EXPECT_DOUBLE_EQ(WindowLayout(3000, 2000, 2).desktopLayout(frames).scale(), 2);
  EXPECT_LT(WindowLayout(500, 500, 1).desktopLayout(frames).scale(), 1);
}

TEST(WindowLayoutTest, SurvivesAWindowThatIsTooNarrowForThePanel) {
  const WindowLayout layout(150, 500, 1);
  EXPECT_EQ(layout.desktop.width, 0);
  EXPECT_EQ(layout.panel.width, 150);
}

}  // namespace
}  // namespace orvane::showroom
