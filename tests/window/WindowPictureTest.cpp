// When the window's picture is outdated.
#include <functional>

#include "desk/hand/FindControl.hpp"
#include "showroom/window/WindowPicture.hpp"
#include "tests/support/Pixels.hpp"
#include "tests/window/SessionFixture.hpp"

namespace orvane::showroom {
namespace {

class WindowPictureTest : public SessionFixture {
 protected:
  WindowPictureTest() { session.advance(2 * second); }
  void draw() { picture.draw(surface.get(), layout, session, false); }
  [[nodiscard]] bool isOutdated() const { return picture.isOutdated(session, false); }

  WindowLayout layout{1000, 560, 1};
  desk::SurfacePointer surface = desk::imageSurface(1000, 560);
  HardwarePanelHost panel{session.hardware()};
  WindowPicture picture{panel};
};

TEST_F(WindowPictureTest, IsOutdatedBeforeTheFirstDrawingAndThenNot) {
  EXPECT_TRUE(isOutdated());
  draw();
  EXPECT_FALSE(isOutdated());
  session.advance(second);
  EXPECT_FALSE(isOutdated());
  picture.invalidate();
  EXPECT_TRUE(isOutdated());
}

TEST_F(WindowPictureTest, IsOutdatedByEveryMovement) {
  draw();
  session.movePointerBy(1, 0);
  EXPECT_TRUE(isOutdated());
}

TEST_F(WindowPictureTest, IsOutdatedByEveryChangeOfTheHardware) {
  Hardware& hardware = session.hardware();
  const std::vector<std::function<void()>> changes{
      [&] { hardware.attachDisplay(); },
      [&] { hardware.makeMain(2); },
      [&] { hardware.detachDisplay(1); },
      [&] { hardware.setEdge(desk::DockEdge::left); },
      [&] { hardware.setAutoHides(true); },
      [&] { hardware.setTrusted(false); },
      [&] { hardware.setDark(true); },
      [&] { hardware.setWallpaper(desk::Appearance::Wallpaper::busy); },
      [&] { hardware.setLanguageList(1); },
      [&] { hardware.setShowsZones(false); },
      [&] { hardware.reopen(); },
      [&] { hardware.crash(); },
      [&] { hardware.launch(); },
  };
  for (std::size_t index = 0; index < changes.size(); ++index) {
    draw();
    ASSERT_FALSE(isOutdated()) << index;
    changes[index]();
    EXPECT_TRUE(isOutdated()) << index;
    session.advance(2 * second);
  }
}

TEST_F(WindowPictureTest, IsOutdatedByAPressOnAControlOfThePanel) {
  draw();
  const auto control = desk::findControl(panel.host().semantics(), "Show trigger zones");
  ASSERT_TRUE(control);
  panel.pointerMoved(control->frame.center());
  draw();
  panel.pointerDown(control->frame.center());
  panel.pointerUp(control->frame.center());
  EXPECT_TRUE(isOutdated());
  EXPECT_FALSE(session.hardware().showsZones());
}

TEST_F(WindowPictureTest, IsOutdatedByTheMinuteAndByCapturingTheMouse) {
  draw();
  EXPECT_TRUE(picture.isOutdated(session, true));
  session.application().terminate();
  draw();
  session.advance(session.nanosecondsToNextChange());
  EXPECT_TRUE(isOutdated());
}

TEST_F(WindowPictureTest, IsOutdatedAtEveryStepOfAnAnimation) {
  session.hardware().setAutoHides(true);
  draw();
  ASSERT_EQ(session.nanosecondsToNextChange(), 0);
  int pictures = 0;
  while (session.nanosecondsToNextChange() == 0) {
    session.advance(second / 60);
    pictures += isOutdated() ? 1 : 0;
    draw();
  }
  EXPECT_GE(pictures, 14);
  EXPECT_LE(pictures, 17);
}

TEST_F(WindowPictureTest, CoversTheWholeWindow) {
  draw();
  for (int y = 0; y < 560; y += 5) {
    for (int x = 0; x < 1000; x += 5) {
      ASSERT_EQ(desk::pixelAt(surface.get(), x, y).alpha, 255) << x << " " << y;
    }
  }
}

}  // namespace
}  // namespace orvane::showroom
