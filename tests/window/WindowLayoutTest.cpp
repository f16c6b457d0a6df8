// How the window is divided.
#include <gtest/gtest.h>

#include "desk/window/StripPainter.hpp"
#include "desk/window/WindowLayout.hpp"

namespace orvane::desk {
namespace {

TEST(WindowLayoutTest, GivesTheStripItsHeightAndTheDesktopTheRest) {
  for (const double ratio : {1.0, 1.5, 2.0}) {
    const WindowLayout layout(1400, 900, ratio);
    EXPECT_EQ(layout.strip.height, static_cast<int>(stripHeight * ratio));
    EXPECT_EQ(layout.desktop.height + layout.strip.height, 900);
    EXPECT_EQ(layout.strip.y, layout.desktop.height);
    EXPECT_EQ(layout.desktop.width, 1400);
  }
}

TEST(WindowLayoutTest, ShowsDisplaysNoLargerThanTheyAre) {
  const std::vector<CGRect> frames{CGRectMake(0, 0, 640, 400)};
  EXPECT_DOUBLE_EQ(WindowLayout(3000, 2000, 1).desktopLayout(frames).scale(), 1);
  EXPECT_DOUBLE_EQ(WindowLayout(3000, 2000, 2).desktopLayout(frames).scale(), 2);
  EXPECT_LT(WindowLayout(500, 500, 1).desktopLayout(frames).scale(), 1);
}

TEST(WindowLayoutTest, SurvivesAWindowThatIsTooLowForTheStrip) {
  const WindowLayout layout(300, 50, 1);
  EXPECT_EQ(layout.desktop.height, 0);
  EXPECT_EQ(layout.strip.height, 50);
}

}  // namespace
}  // namespace orvane::desk
