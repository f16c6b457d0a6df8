// The division of the window, and when its picture is outdated.
#include <functional>

#include <gtest/gtest.h>

#include "desk/hand/FindControl.hpp"
#include "showroom/desktop/StandardDisplays.hpp"
#include "showroom/hardware/HardwarePanel.hpp"
#include "showroom/window/WindowLayout.hpp"
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
