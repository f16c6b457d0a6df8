// The pixels of the desktop against the state of the machine.
#include <cstdlib>

#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/platform/appkit/Window.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/DesktopPainter.hpp"
#include "showroom/desktop/DockShelf.hpp"
#include "showroom/desktop/DockTileArt.hpp"
#include "showroom/desktop/Rects.hpp"
#include "tests/desktop/DesktopFixture.hpp"
#include "tests/support/Contrast.hpp"

namespace orvane::showroom {
namespace {

class DesktopPainterTest : public DesktopFixture {
 protected:
  ui::Rect dockFrame() const {
    const CGRect frame = machine.dock.frame();
    return {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height};
  }
  DockShelf shelf() const {
    return DockShelf::make(dockFrame(), machine.dock.edge(), machine.dock.shownFraction(),
                           dockTileCount());
  }
  /// The same desktop without the Dock.
  desk::SurfacePointer pictureWithoutDock() {
    setAutoHide(true);
    machine.advance(1);
    desk::SurfacePointer result = picture();
    setAutoHide(false);
    machine.advance(1);
    return result;
  }
};

TEST_F(DesktopPainterTest, PaintsTheDockOnlyInTheMachinesFrame) {
  for (const char* const edge : {"bottom", "left", "right"}) {
    setEdge(edge);
    machine.advance(1);
    const desk::SurfacePointer with = picture();
    const desk::SurfacePointer without = pictureWithoutDock();
    const ui::Rect shelfRect = shelf().shelf;
    const double area = shelfRect.width * shelfRect.height;
    EXPECT_GT(differences(with, without, shelfRect), 0.9 * area) << edge;
    // The shadow of the shelf reaches a little beyond it.
    EXPECT_EQ(differences(with, without),
              differences(with, without, shelfRect.inset(-30).intersection({0, 0, 1600, 500})))
        << edge;
    EXPECT_EQ(differences(with, without, secondFrame), 0) << edge;
  }
}

TEST_F(DesktopPainterTest, PaintsTheDockOnTheDisplayItHasMovedTo) {
  const desk::SurfacePointer before = picture();
  machine.mouse.moveTo({1200, 490});
  machine.mouse.moveBy(0, 30);
  machine.advance(1);
  ASSERT_EQ(machine.dock.displayNumber(), 2U);
  machine.mouse.moveTo({400, 250});
  const desk::SurfacePointer after = picture();
  const ui::Rect now = shelf().shelf;
  EXPECT_GT(now.x, 800);
  EXPECT_GT(differences(before, after, now), 0.9 * now.width * now.height);
  EXPECT_GT(differences(before, after, now.movedBy({-800, 0})), 0.9 * now.width * now.height);
}

TEST_F(DesktopPainterTest, PaintsTheSlidingDockHalfWay) {
  const desk::SurfacePointer hidden = pictureWithoutDock();
  setAutoHide(true);
  machine.advance(1);
  machine.mouse.moveTo({200, 499.5});
  machine.advance(0.125);
  ASSERT_DOUBLE_EQ(machine.dock.shownFraction(), 0.5);
  const DockShelf half = shelf();
  const desk::SurfacePointer sliding = picture();
  const ui::Rect seen = half.shelf.intersection(firstFrame);
  EXPECT_GT(seen.height, 20);
  EXPECT_LT(seen.height, half.shelf.height);
  EXPECT_GT(differences(hidden, sliding, seen), 0.9 * seen.width * seen.height);
  EXPECT_EQ(differences(hidden, sliding, {250, 400, 300, seen.y - 400 - 30}), 0);
}

TEST_F(DesktopPainterTest, ShowsTheLockOpenOrClosedInEveryMenuBarAndNoneWithoutTheApplication) {
  const desk::SurfacePointer open = picture();
  application.model().toggleSelectedDisplayLock();
  // The icon follows within a second.
  machine.advance(1);
  ASSERT_TRUE(application.model().isGuardRunning());
  const desk::SurfacePointer closed = picture();
  application.terminate();
  const desk::SurfacePointer none = picture();
  int inside = 0;
  for (const ui::Rect& frame : {firstFrame, secondFrame}) {
    const ui::Rect icon = rectOf(desk::StatusBar::itemFrame(rectOf(frame)));
    EXPECT_GT(differences(open, closed, icon), 10);
    EXPECT_GT(differences(open, none, icon), 10);
    EXPECT_GT(differences(closed, none, icon), 10);
    inside += differences(open, closed, icon);
  }
  EXPECT_EQ(differences(open, closed), inside);
}

TEST_F(DesktopPainterTest, TheMenuClockShowsTheMachinesTime) {
  const desk::SurfacePointer before = picture();
  machine.advance(30);
  EXPECT_EQ(differences(before, picture()), 0);
  machine.advance(30);
  const desk::SurfacePointer after = picture();
  EXPECT_GT(differences(before, after, {660, 0, 140, 24}), 5);
  EXPECT_EQ(differences(before, after, {0, 24, 1600, 476}), 0);
}

TEST_F(DesktopPainterTest, MarksTheZonesOnRequest) {
  application.model().toggleSelectedDisplayLock();
  machine.runDue();
  DesktopScene scene(machine, application);
  ASSERT_EQ(scene.zones.size(), 1U);
  const desk::SurfacePointer plain = picture(scene);
  scene.showsZones = true;
  const desk::SurfacePointer marked = picture(scene);
  const ui::Rect zone{800, 488, 800, 12};
  EXPECT_EQ(differences(plain, marked, zone), 800 * 12);
  // Only the arrows reach beyond the zone, by half a nudge, a line and its ends.
  EXPECT_GT(differences(plain, marked, {800, 474, 800, 14}), 0);
  EXPECT_EQ(differences(plain, marked), differences(plain, marked, {800, 474, 800, 26}));
  for (const int x : {805, 1200, 1595}) {
    const desk::Pixel before = desk::pixelAt(plain.get(), x, 494);
    const desk::Pixel after = desk::pixelAt(marked.get(), x, 494);
    EXPECT_GT(after.red - before.red, after.blue - before.blue + 40) << x;
  }
}

TEST_F(DesktopPainterTest, MarksAMovementThatWasMovedBack) {
  DesktopScene scene(machine, application);
  const desk::SurfacePointer plain = picture(scene);
  scene.movedBack = MovedBack{{1200, 300}, {1200, 288}, 1};
  const desk::SurfacePointer marked = picture(scene);
  EXPECT_GT(differences(plain, marked, {1170, 270, 60, 60}), 100);
  EXPECT_EQ(differences(plain, marked, firstFrame), 0);
  scene.movedBack->strength = 0;
  EXPECT_EQ(differences(plain, picture(scene)), 0);
}

TEST_F(DesktopPainterTest, PaintsThePointerWithItsTipAtItsLocation) {
  const desk::SurfacePointer before = picture();
  machine.mouse.moveTo({1100, 200});
  const desk::SurfacePointer after = picture();
  EXPECT_GT(differences(before, after, {1097, 197, 16, 24}), 100);
  EXPECT_EQ(differences(before, after), differences(before, after, {1094, 194, 22, 30}) +
                                            differences(before, after, {394, 244, 22, 30}));
  // Inside the arrow, a little below the tip, it is dark.
  EXPECT_LT(desk::pixelAt(after.get(), 1102, 206).green, 60);
  DesktopScene large(machine, application);
  large.pointerMagnification = 2;
  EXPECT_GT(differences(before, picture(large), {1097, 222, 40, 20}), 50);
}

TEST_F(DesktopPainterTest, FollowsTheWallpaperAndTheAppearance) {
  const desk::SurfacePointer light = picture();
  machine.appearance.isDark = true;
  const desk::SurfacePointer dark = picture();
  EXPECT_GT(desk::pixelAt(light.get(), 400, 4).green, 150);
  EXPECT_LT(desk::pixelAt(dark.get(), 400, 4).green, 60);
  machine.appearance.wallpaper = desk::Appearance::Wallpaper::white;
  EXPECT_EQ(desk::pixelAt(picture().get(), 100, 200), (desk::Pixel{255, 255, 255, 255}));
  machine.appearance.wallpaper = desk::Appearance::Wallpaper::black;
  EXPECT_EQ(desk::pixelAt(picture().get(), 100, 200), (desk::Pixel{0, 0, 0, 255}));
}

TEST_F(DesktopPainterTest, KeepsTheMenuBarLegibleOnEveryWallpaper) {
  using Wallpaper = desk::Appearance::Wallpaper;
  for (const bool isDark : {false, true}) {
    for (const Wallpaper wallpaper :
         {Wallpaper::standard, Wallpaper::white, Wallpaper::black, Wallpaper::busy}) {
      machine.appearance.isDark = isDark;
      machine.appearance.wallpaper = wallpaper;
      const desk::SurfacePointer shown = picture();
      double worst = 21;
      for (int x = 400; x < 560; ++x) {
        // The luminance of the text.
        const double ink = isDark ? 0.83 : 0.02;
        worst = std::min(worst, contrast(luminance(orvane::pixelAt(shown.get(), x, 12)), ink));
      }
      EXPECT_GE(worst, 4.5) << isDark << " " << static_cast<int>(wallpaper);
    }
  }
}

TEST_F(DesktopPainterTest, PutsWindowsBelowTheDockAndThoseOfMenuLevelAboveTheMenuBar) {
  const ui::Rect dock = shelf().shelf;
  const auto square = [](const CGRect& frame, std::int64_t level) {
    appkit::Window window(appkit::WindowKind::window, frame, 0);
    window.setLevel(level);
    window.setContentView(appkit::HostingView(
        [](const ui::Environment&) { return ui::Rectangle().fill(ui::Color::rgb(1, 0, 1)); }));
    window.orderFrontRegardless();
    return window;
  };
  const appkit::Window below = square(CGRectMake(dock.x - 40, 0, dock.width + 80, 540 - dock.y),
                                      appkit::WindowLevel::normal);
  const appkit::Window above = square(CGRectMake(740, 430, 60, 60), appkit::WindowLevel::status);
  machine.runDue();
  const desk::SurfacePointer shown = picture();
  const desk::Pixel magenta{255, 0, 255, 255};
  EXPECT_EQ(
      desk::pixelAt(shown.get(), static_cast<int>(dock.x) - 30, static_cast<int>(dock.y) - 35),
      magenta);
  const ui::Point tile = shelf().tiles[1].center();
  EXPECT_NE(desk::pixelAt(shown.get(), static_cast<int>(tile.x), static_cast<int>(tile.y)),
            magenta);
  EXPECT_EQ(desk::pixelAt(shown.get(), 785, 15), magenta);
}

TEST_F(DesktopPainterTest, UsesNoMissingImageOrSymbol) {
  (void)picture();
  EXPECT_TRUE(resources.missingNames.empty());
}

/// A window that is filled with the accent colour, and a pop-up menu with one item, in dark mode.
class DesktopAccentTest : public DesktopFixture {
 protected:
  static constexpr desk::Pixel lightBlue{0, 122, 255, 255};
  static constexpr desk::Pixel darkBlue{10, 132, 255, 255};

  DesktopAccentTest() {
    machine.appearance.isDark = true;
    window.setContentView(appkit::HostingView(
        [](const ui::Environment&) { return ui::Rectangle().fill(ui::Color::accent()); }));
    window.orderFrontRegardless();
    machine.runDue();
  }

  /// Blending rounds.
  static bool isAbout(const desk::Pixel& pixel, const desk::Pixel& wanted) {
    return std::abs(pixel.red - wanted.red) <= 1 && std::abs(pixel.green - wanted.green) <= 1 &&
           std::abs(pixel.blue - wanted.blue) <= 1;
  }
  desk::Pixel pixelOfWindow() { return desk::pixelAt(picture().get(), 250, 250); }
  /// The colour of the highlighted item.
  desk::Pixel pixelOfItem() {
    desk::WindowServer& server = desk::WindowServer::current();
    ui::MenuRequest request;
    request.items = {"One"};
    request.anchor = {0, 0, 100, 20};
    server.menus.openPopUp(request, server.windows().back()->content);
    machine.runDue();
    server.menus.layOut();
    const CGRect frame = server.menus.rows().front().frame;
    machine.mouse.moveTo({CGRectGetMaxX(frame) - 12, CGRectGetMidY(frame)});
    machine.runDue();
    const desk::SurfacePointer shown = picture();
    server.menus.close();
    // Left of the pointer's arrow.
    return desk::pixelAt(shown.get(), static_cast<int>(CGRectGetMaxX(frame)) - 15,
                         static_cast<int>(CGRectGetMidY(frame)));
  }

  appkit::Window window{appkit::WindowKind::window, CGRectMake(200, 200, 100, 100), 0};
};

TEST_F(DesktopAccentTest, TheLightAccentCanBeChosenInDarkMode) {
  machine.appearance.accent = desk::Appearance::Accent{0, 122, 255};
  EXPECT_PRED2(isAbout, pixelOfWindow(), lightBlue);
  EXPECT_PRED2(isAbout, pixelOfItem(), lightBlue);
}

TEST_F(DesktopAccentTest, TheDefaultAccentIsThatOfDarkMode) {
  EXPECT_PRED2(isAbout, pixelOfWindow(), darkBlue);
  EXPECT_PRED2(isAbout, pixelOfItem(), darkBlue);
  machine.appearance.accent = desk::Appearance::Accent{200, 20, 60};
  EXPECT_PRED2(isAbout, pixelOfItem(), (desk::Pixel{200, 20, 60, 255}));
}

}  // namespace
}  // namespace orvane::showroom
