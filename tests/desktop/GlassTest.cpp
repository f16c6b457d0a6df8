// Glass under Reduce transparency and Increase contrast.
#include <vector>

#include "desk/windows/WindowServer.hpp"
#include "tests/desktop/DesktopFixture.hpp"

namespace orvane::showroom {
namespace {

class GlassTest : public DesktopFixture {
 protected:
  /// Inner parts of the menu bar, the Dock's shelf and the main panel.
  std::vector<ui::Rect> glass() {
    const CGRect dock = machine.dock.frame();
    const auto window = desk::WindowServer::current().windows().back();
    const CGPoint corner = desk::WindowServer::current().topLeftOf(*window);
    return {{300, 4, 200, 12},
            {dock.origin.x + 10, dock.origin.y + 10, dock.size.width - 20, 4},
            ui::Rect{corner.x, corner.y, window->frame.size.width, window->frame.size.height}.inset(
                40)};
  }
  desk::SurfacePointer pictureOver(desk::Appearance::Wallpaper wallpaper) {
    machine.appearance.wallpaper = wallpaper;
    return picture();
  }
};

TEST_F(GlassTest, ShowsItsBackgroundUnlessTransparencyIsReduced) {
  application.reopen();
  machine.advance(2);
  for (const bool isReduced : {false, true}) {
    machine.appearance.reducesTransparency = isReduced;
    const desk::SurfacePointer overWhite = pictureOver(desk::Appearance::Wallpaper::white);
    const desk::SurfacePointer overBlack = pictureOver(desk::Appearance::Wallpaper::black);
    for (const ui::Rect& part : glass()) {
      if (isReduced) {
        EXPECT_EQ(differences(overWhite, overBlack, part), 0) << part.x << ", " << part.y;
      } else {
        EXPECT_GT(differences(overWhite, overBlack, part), 100) << part.x << ", " << part.y;
      }
    }
  }
}

TEST_F(GlassTest, WithIncreasedContrastTheLabelsAreStronger) {
  application.reopen();
  machine.advance(2);
  const desk::SurfacePointer normal = picture();
  machine.appearance.increasesContrast = true;
  const desk::SurfacePointer increased = picture();
  int stronger = 0;
  int weaker = 0;
  const ui::Rect panel = glass().back();
  for (int y = static_cast<int>(panel.y); y < static_cast<int>(panel.bottom()); ++y) {
    for (int x = static_cast<int>(panel.x); x < static_cast<int>(panel.right()); ++x) {
      const int change =
          desk::pixelAt(increased.get(), x, y).green - desk::pixelAt(normal.get(), x, y).green;
      stronger += change < -8 ? 1 : 0;
      weaker += change > 8 ? 1 : 0;
    }
  }
  EXPECT_GT(stronger, 200);
  EXPECT_EQ(weaker, 0);
}

}  // namespace
}  // namespace orvane::showroom
