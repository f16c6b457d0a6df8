// Glass under Reduce transparency and Increase contrast.
#include <vector>

#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/Glass.hpp"
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

TEST(GlassCacheTest, EqualBackgroundsAreBlurredOnce) {
  desk::DrawingResources resources;
  GlassCache cache;
  const auto paint = [&](int width, int place, double sigma) {
    const desk::SurfacePointer surface = desk::filledSurface(width, 20, {0, 0, 0, 1});
    desk::CairoCanvas canvas(surface.get(), 1, resources);
    canvas.fill(ui::Shape::rectangle({1.0 * place, 4, 6, 6}), ui::Paint::solid({1, 1, 1, 1}));
    paintGlass(canvas, ui::Shape::rectangle({0, 0, 1.0 * width, 20}), sigma, {0, 0, 0, 0.1}, cache);
    return desk::contentOf(surface.get());
  };
  const std::string first = paint(20, 3, 2);
  EXPECT_EQ(paint(20, 3, 2), first);
  EXPECT_EQ(cache.count(), 1U);
  EXPECT_NE(paint(20, 4, 2), first);
  EXPECT_NE(paint(20, 3, 3), first);
  paint(21, 3, 2);
  EXPECT_EQ(cache.count(), 4U);
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
