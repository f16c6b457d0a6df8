// When the window's picture is outdated.
#include <functional>

#include "desk/hand/FindControl.hpp"
#include "showroom/desktop/StandardDisplays.hpp"
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

  void setDock(const char* key, const desk::PropertyValue& value) {
    desk::Dock::store(session.machine().preferences, key, value);
  }

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
  desk::Machine& machine = session.machine();
  desk::ApplicationHost& application = session.application();
  const std::vector<std::function<void()>> changes{
      [&] { attachNextStandardDisplay(machine); },
      [&] { ASSERT_FALSE(machine.displays.setMain(2)); },
      [&] { ASSERT_FALSE(machine.displays.detach(1)); },
      [&] { setDock(desk::Dock::orientationKey, std::string("left")); },
      [&] { setDock(desk::Dock::autoHideKey, true); },
      [&] { machine.permission.setTrusted(false); },
      [&] { machine.appearance.isDark = true; },
      [&] { machine.appearance.wallpaper = desk::Appearance::Wallpaper::busy; },
      [&] { machine.locale = hardwareLanguages()[1].locale; },
      [&] { session.hardware().showsZones = false; },
      [&] { application.reopen(); },
      [&] { application.crash(); },
      [&] { application.launch(); },
  };
  for (std::size_t index = 0; index < changes.size(); ++index) {
    draw();
    ASSERT_FALSE(isOutdated()) << index;
    changes[index]();
    machine.runDue();
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
  EXPECT_FALSE(session.hardware().showsZones);
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
  setDock(desk::Dock::autoHideKey, true);
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
