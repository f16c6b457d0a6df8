// The pixels of the desktop against the state of the machine, and the image of a file that is
// dragged from the permission guide.
#include <cstdlib>

#include "Orvane/permission/OrvanePermissionGuideWindowController.hpp"
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

TEST_F(DesktopPainterTest, PaintsThePointerInTheRequestedSize) {
  DesktopScene scene(machine, application);
  const desk::SurfacePointer normal = picture(scene);
  scene.pointerMagnification = 2;
  EXPECT_GT(differences(normal, picture(scene), {397, 272, 40, 20}), 50);
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

TEST_F(DesktopAccentTest, IsThatOfDarkModeUnlessOneIsChosen) {
  EXPECT_PRED2(isAbout, pixelOfWindow(), (desk::Pixel{10, 132, 255, 255}));
  EXPECT_PRED2(isAbout, pixelOfItem(), (desk::Pixel{10, 132, 255, 255}));
  // The blue of light mode.
  machine.appearance.accent = desk::Appearance::Accent{0, 122, 255};
  EXPECT_PRED2(isAbout, pixelOfWindow(), (desk::Pixel{0, 122, 255, 255}));
  EXPECT_PRED2(isAbout, pixelOfItem(), (desk::Pixel{0, 122, 255, 255}));
}

class DesktopLayersOpenMenuTest : public DesktopFixture {
 protected:
  DesktopLayersOpenMenuTest() {
    // The windows fit side by side on the two displays.
    OrvanePermissionGuideWindowController::shared().show(nullptr);
    machine.mouse.moveTo({1200, 250});
    application.systemSettings().open(desk::SystemSettings::accessibilityPage);
    machine.runDue();
  }

  void beginDrag() {
    const CGPoint corner = server().topLeftOf(*window("guide"));
    moveTo({corner.x + 180, corner.y + 290});
    hand.pressButton();
    machine.mouse.moveBy(8, 8);
    machine.runDue();
    ASSERT_TRUE(server().pointer.fileDrag());
  }
  /// On the list of applications.
  CGPoint listPlace() {
    const CGPoint corner = server().topLeftOf(*window("system"));
    const ui::Rect list = application.systemSettings().listFrame().value_or(ui::Rect{});
    return {corner.x + list.x + 200, corner.y + list.y + 20};
  }
  /// Points on the mark: its white left arm, and the disc above it.
  static ui::Point armAt(CGPoint place) { return {place.x + 17, place.y + 22}; }
  static ui::Point discAt(CGPoint place) { return {place.x + 16, place.y + 18}; }
  static desk::Pixel at(const desk::SurfacePointer& shown, ui::Point place) {
    return desk::pixelAt(shown.get(), static_cast<int>(place.x), static_cast<int>(place.y));
  }
};

TEST_F(DesktopLayersOpenMenuTest, TheImageFollowsThePointer) {
  beginDrag();
  const CGPoint place{700, 450};
  moveTo(place);
  const ui::Rect image = server().pointer.fileDrag()->image.movedBy({place.x, place.y});
  const desk::SurfacePointer during = picture();
  release();
  EXPECT_GT(differences(picture(), during, image), image.width * image.height / 2);
}

TEST_F(DesktopLayersOpenMenuTest, ADropTargetHasTheCopyMark) {
  beginDrag();
  const CGPoint place = listPlace();
  moveTo(place);
  ASSERT_TRUE(server().pointer.canDropHere());
  const desk::SurfacePointer over = picture();
  const desk::Pixel disc = at(over, discAt(place));
  EXPECT_GT(disc.green, disc.red + 60);
  EXPECT_GT(disc.green, disc.blue + 60);
  const desk::Pixel arm = at(over, armAt(place));
  EXPECT_GT(arm.red, 180) << "the plus is white";
  EXPECT_LT(disc.red, 120) << "the disc around it is not";
}

TEST_F(DesktopLayersOpenMenuTest, OtherPlacesHaveNoCopyMark) {
  beginDrag();
  const CGPoint place{700, 450};
  moveTo(place);
  EXPECT_FALSE(server().pointer.canDropHere());
  const desk::Pixel disc = at(picture(), discAt(place));
  EXPECT_FALSE(disc.green > disc.red + 60 && disc.green > disc.blue + 60);
}

}  // namespace
}  // namespace orvane::showroom
