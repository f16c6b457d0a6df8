// Pictures of the desktop as files, and comparisons with kept pictures.
#include <filesystem>
#include <limits>

#include "desk/canvas/PngFile.hpp"
#include "showroom/desktop/DesktopPicture.hpp"
#include "showroom/desktop/StandardDisplays.hpp"
#include "tests/desktop/DesktopFixture.hpp"
#include "tests/support/KeptPicture.hpp"

namespace orvane::showroom {
namespace {

class DesktopPictureTest : public DesktopFixture {
 protected:
  std::filesystem::path file =
      std::filesystem::path(testing::TempDir()) /
      (std::string("orvane-desktop-") +
       testing::UnitTest::GetInstance()->current_test_info()->name() + ".png");

  static void expectPicture(const desk::SurfacePointer& shown, const std::string& name) {
    EXPECT_EQ(desk::differenceFromKept(shown.get(), "tests/desktop/pictures/" + name + ".png"),
              std::nullopt);
  }
};

TEST_F(DesktopPictureTest, HasTheRequestedScale) {
  ASSERT_EQ(writePicture(machine, application, file, 0.5), std::nullopt);
  const desk::SurfacePointer read = desk::readPng(file);
  ASSERT_TRUE(read);
  EXPECT_EQ(cairo_image_surface_get_width(read.get()), 800);
  EXPECT_EQ(cairo_image_surface_get_height(read.get()), 250);
}

TEST_F(DesktopPictureTest, IsRefusedWithAReason) {
  EXPECT_NE(writePicture(machine, application, "/nowhere/at/all.png", 0.5), std::nullopt);
  for (const double scale : {0.0, -1.0, 1e9, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_NE(writePicture(machine, application, file, scale), std::nullopt) << scale;
  }
  ASSERT_FALSE(machine.displays.detach(1));
  ASSERT_FALSE(machine.displays.detach(2));
  EXPECT_EQ(writePicture(machine, application, file, 1),
            "there is no display to make a picture of");
}

TEST_F(DesktopPictureTest, LightWithALockedDisplay) {
  application.model().toggleSelectedDisplayLock();
  machine.advance(1);
  machine.mouse.moveTo({1200, 440});
  DesktopScene scene(machine, application);
  scene.showsZones = true;
  scene.movedBack = MovedBack{{1200, 499}, {1200, 487}, 0.7};
  expectPicture(renderDesktop(painter, scene, DesktopStyle::monitors, 0.6), "day");
}

TEST_F(DesktopPictureTest, DarkWithTheDockAtTheLeft) {
  machine.appearance.isDark = true;
  setEdge("left");
  machine.advance(1);
  expectPicture(
      renderDesktop(painter, DesktopScene(machine, application), DesktopStyle::exact, 0.6),
      "night");
}

TEST_F(DesktopPictureTest, OnABusyWallpaper) {
  machine.appearance.wallpaper = desk::Appearance::Wallpaper::busy;
  ASSERT_FALSE(machine.displays.detach(2));
  expectPicture(renderDesktop(painter, DesktopScene(machine, application), DesktopStyle::exact, 1),
                "busy");
}

}  // namespace
}  // namespace orvane::showroom
