// The stage of the tour: its actions, checks and output.
#include <algorithm>
#include <filesystem>
#include <sstream>

#include <gtest/gtest.h>

#include "desk/canvas/PngFile.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/StandardDisplays.hpp"
#include "showroom/tour/TourStage.hpp"

namespace orvane::showroom {
namespace {

class TourStageTest : public testing::Test {
 protected:
  TourStageTest() {
    std::filesystem::create_directories(folder);
    attachNextStandardDisplay(stage.machine());
    attachNextStandardDisplay(stage.machine());
  }
  ~TourStageTest() override { std::filesystem::remove_all(folder); }

  std::filesystem::path folder = std::filesystem::path(testing::TempDir()) /
                                 (std::string("orvane-stage-") +
                                  testing::UnitTest::GetInstance()->current_test_info()->name());
  std::ostringstream output;
  std::ostringstream errors;
  TourStage stage{folder, output, errors};
};

TEST_F(TourStageTest, WritesANumberedCaptionAndAPicture) {
  stage.check(true, "nothing");
  stage.addStep("Once upon a time.");
  EXPECT_EQ(output.str(), "01  Once upon a time.\n");
  EXPECT_TRUE(std::filesystem::exists(folder / "01.png"));
  EXPECT_TRUE(stage.hasPassed());
}

TEST_F(TourStageTest, StopsAfterAFailedCheck) {
  stage.addStep("True.");
  stage.check(stage.isDockOn(2), "the Dock is on the second display");
  stage.check(false, "and this neither");
  stage.addStep("Not true.");
  stage.check(true, "later claims change nothing");
  stage.addStep("True again.");
  EXPECT_FALSE(stage.hasPassed());
  EXPECT_EQ(output.str(), "01  True.\n");
  EXPECT_EQ(errors.str(),
            "orvane-desk: step 2 of the tour is not true: the Dock is on the second display\n");
  EXPECT_FALSE(std::filesystem::exists(folder / "02.png"));
}

TEST_F(TourStageTest, ReportsAnUnwritablePicture) {
  std::filesystem::remove_all(folder);
  stage.addStep("Where?");
  EXPECT_TRUE(stage.failedToWrite());
  EXPECT_EQ(output.str(), "");
  EXPECT_NE(errors.str().find("01.png"), std::string::npos);
}

TEST_F(TourStageTest, MovesThePointerInSmallStepsThatTakeTime) {
  const std::int64_t movements = stage.machine().counters.hardwareMovements;
  stage.walkTo({1500, 300});
  EXPECT_NEAR(stage.machine().pointer.location().x, 1500, 1e-6);
  EXPECT_NEAR(stage.machine().pointer.location().y, 300, 1e-6);
  EXPECT_EQ(stage.machine().counters.hardwareMovements - movements, 25);
  EXPECT_EQ(stage.machine().clock.now(), desk::Clock::nanosecondsPerSecond / 2);
}

TEST_F(TourStageTest, PressesAgainstTheEdgeSoThatTheDockMoves) {
  stage.pressLowerEdge(2, 1, 0);
  EXPECT_TRUE(stage.isDockOn(2));
  EXPECT_EQ(stage.dockPlace(), "Right Display");
  stage.moveAway(1);
  EXPECT_TRUE(stage.isDockOn(2)) << "moving away does not move the Dock";
  EXPECT_EQ(stage.machine().dock.revealCount(2), 1);
}

TEST_F(TourStageTest, ClicksControlsAndMenuItems) {
  stage.machine().permission.setTrusted(true);
  stage.application().launch();
  stage.clickIcon(1);
  ASSERT_TRUE(desk::WindowServer::current().menus.isStatusMenuOpen());
  stage.click("Settings", desk::Surfaces::menu);
  stage.machine().advance(1);
  stage.pick("Language", "Chinese", "settings");
  EXPECT_EQ(stage.snapshot().appLanguage, OrvaneLanguage::chinese);
  stage.pressEscape();
  EXPECT_FALSE(stage.isOpen("settings"));
  stage.click("固定 Dock", "main");
  EXPECT_TRUE(stage.snapshot().guard.isRunning);
  EXPECT_TRUE(stage.hasPassed()) << errors.str();
}

TEST_F(TourStageTest, AMissingControlIsAFailure) {
  stage.application().launch();
  stage.clickIcon(1);
  stage.click("Fly", desk::Surfaces::menu);
  EXPECT_FALSE(stage.hasPassed());
  EXPECT_NE(errors.str().find("\"Fly\" in menu"), std::string::npos);
}

TEST_F(TourStageTest, WritesACloseUpAtTwoPixelsPerPoint) {
  stage.machine().permission.setTrusted(true);
  stage.application().launch();
  stage.application().reopen();
  stage.machine().advance(1);
  stage.writeCloseUp("panel", "main");
  const desk::SurfacePointer picture = desk::readPng(folder / "panel.png");
  ASSERT_TRUE(picture);
  // 700 by 516 points with a margin of 28, clipped to the screen's height of 640 points.
  EXPECT_EQ(cairo_image_surface_get_width(picture.get()), 2 * (700 + 56));
  const auto panel = desk::Surfaces(desk::WindowServer::current()).window("main");
  const double top = std::max(0.0, 640 - CGRectGetMaxY(panel->frame) - 28);
  const double bottom = std::min(640.0, 640 - panel->frame.origin.y + 28);
  EXPECT_EQ(cairo_image_surface_get_height(picture.get()), 2 * static_cast<int>(bottom - top));
  stage.writeCloseUp("nothing", "settings");
  EXPECT_FALSE(stage.hasPassed());
  EXPECT_FALSE(std::filesystem::exists(folder / "nothing.png"));
}

}  // namespace
}  // namespace orvane::showroom
