// The stage of the tour: its hand, and its honesty.
#include <algorithm>
#include <filesystem>
#include <sstream>

#include <gtest/gtest.h>

#include "desk/canvas/PngFile.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/StandardDisplays.hpp"
#include "showroom/tour/TourStage.hpp"

namespace orvane::desk {
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
  std::ostringstream story;
  std::ostringstream complaints;
  TourStage stage{folder, story, complaints};
};

TEST_F(TourStageTest, TellsWithANumberAndAPicture) {
  stage.check(true, "nothing");
  stage.tell("Once upon a time.");
  EXPECT_EQ(story.str(), "01  Once upon a time.\n");
  EXPECT_TRUE(std::filesystem::exists(folder / "01.png"));
  EXPECT_TRUE(stage.isTrue());
}

TEST_F(TourStageTest, FallsSilentOnceAClaimDoesNotHold) {
  stage.tell("True.");
  stage.check(stage.isDockOn(2), "the Dock is on the second display");
  stage.check(false, "and this neither");
  stage.tell("Not true.");
  stage.check(true, "later claims change nothing");
  stage.tell("True again.");
  EXPECT_FALSE(stage.isTrue());
  EXPECT_EQ(story.str(), "01  True.\n");
  EXPECT_EQ(complaints.str(),
            "orvane-desk: step 2 of the tour is not true: the Dock is on the second display\n");
  EXPECT_FALSE(std::filesystem::exists(folder / "02.png"));
}

TEST_F(TourStageTest, SaysWhenAPictureCannotBeWritten) {
  std::filesystem::remove_all(folder);
  stage.tell("Where?");
  EXPECT_TRUE(stage.failedToWrite());
  EXPECT_EQ(story.str(), "");
  EXPECT_NE(complaints.str().find("01.png"), std::string::npos);
}

TEST_F(TourStageTest, WalksBySmallMovementsThatTakeTime) {
  const std::int64_t movements = stage.machine().counters.hardwareMovements;
  stage.walkTo({1500, 300});
  EXPECT_NEAR(stage.machine().pointer.location().x, 1500, 1e-6);
  EXPECT_NEAR(stage.machine().pointer.location().y, 300, 1e-6);
  EXPECT_EQ(stage.machine().counters.hardwareMovements - movements, 25);
  EXPECT_EQ(stage.machine().clock.now(), Clock::nanosecondsPerSecond / 2);
}

TEST_F(TourStageTest, PressesAgainstTheEdgeSoThatTheDockFeelsIt) {
  stage.pressLowerEdge(2, 1, 0);
  EXPECT_TRUE(stage.isDockOn(2));
  EXPECT_EQ(stage.dockPlace(), "Right Display");
  stage.moveAway(1);
  EXPECT_TRUE(stage.isDockOn(2)) << "walking away fetches nothing";
  EXPECT_EQ(stage.machine().dock.revealCount(2), 1);
}

TEST_F(TourStageTest, TheHandClicksWhatItIsToldTo) {
  stage.machine().permission.setTrusted(true);
  stage.application().launch();
  stage.clickIcon(1);
  ASSERT_TRUE(WindowServer::current().menus.isStatusMenuOpen());
  stage.click("Settings", Surfaces::menu);
  stage.machine().advance(1);
  stage.pick("Language", "Chinese", "settings");
  EXPECT_EQ(stage.seen().appLanguage, OrvaneLanguage::chinese);
  stage.pressEscape();
  EXPECT_FALSE(Surfaces(WindowServer::current()).isOpen("settings"));
  stage.click("固定 Dock", "main");
  EXPECT_TRUE(stage.seen().guard.isRunning);
  EXPECT_TRUE(stage.isTrue()) << complaints.str();
}

TEST_F(TourStageTest, AControlThatIsNotThereEndsTheStory) {
  stage.application().launch();
  stage.clickIcon(1);
  stage.click("Fly", Surfaces::menu);
  EXPECT_FALSE(stage.isTrue());
  EXPECT_NE(complaints.str().find("\"Fly\" in menu"), std::string::npos);
}

TEST_F(TourStageTest, KeepsACloseUpOfASurfaceAtTwoPixelsPerPoint) {
  stage.machine().permission.setTrusted(true);
  stage.application().launch();
  stage.application().reopen();
  stage.machine().advance(1);
  stage.keep("panel", "main");
  EXPECT_EQ(stage.keptCount(), 1);
  const SurfacePointer picture = readPng(folder / "panel.png");
  ASSERT_TRUE(picture);
  // The panel of 700 by 516 points, and 28 around it, but nothing beyond the screen of 640 points.
  EXPECT_EQ(cairo_image_surface_get_width(picture.get()), 2 * (700 + 56));
  const auto panel = Surfaces(WindowServer::current()).window("main");
  const double top = std::max(0.0, 640 - CGRectGetMaxY(panel->frame) - 28);
  const double bottom = std::min(640.0, 640 - panel->frame.origin.y + 28);
  EXPECT_EQ(cairo_image_surface_get_height(picture.get()), 2 * static_cast<int>(bottom - top));
  stage.keep("nothing", "settings");
  EXPECT_FALSE(stage.isTrue());
  EXPECT_FALSE(std::filesystem::exists(folder / "nothing.png"));
}

}  // namespace
}  // namespace orvane::desk
