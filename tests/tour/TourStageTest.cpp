// The stage of the tour with its actions, checks and output, and the whole tour, twice.
#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/canvas/PngFile.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/StandardDisplays.hpp"
#include "showroom/tour/RunTour.hpp"
#include "showroom/tour/TourStage.hpp"
#include "tests/support/BytesOf.hpp"

namespace orvane::showroom {
namespace {

class TourTest : public testing::Test {
 protected:
  TourTest() { std::filesystem::remove_all(folder); }
  ~TourTest() override { std::filesystem::remove_all(folder); }

  std::filesystem::path folder =
      std::filesystem::path(testing::TempDir()) /
      (std::string("orvane-tour-") + testing::UnitTest::GetInstance()->current_test_info()->name());
};

class TourStageTest : public TourTest {
 protected:
  TourStageTest() {
    std::filesystem::create_directories(folder);
    attachNextStandardDisplay(stage.machine());
    attachNextStandardDisplay(stage.machine());
  }

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

class RunTourTest : public TourTest {
 protected:
  static std::map<std::string, std::string> filesIn(const std::filesystem::path& directory) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
      files[entry.path().filename().string()] = bytesOf(entry.path());
    }
    return files;
  }
};

TEST_F(RunTourTest, WritesACaptionForEveryPictureAndTheSameEachTime) {
  testing::internal::CaptureStdout();
  EXPECT_EQ(runTour((folder / "new" / "pictures").string()), 0);
  const std::string captions = testing::internal::GetCapturedStdout();
  std::istringstream lines(captions);
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count) {
    const std::string number = line.substr(0, 2);
    EXPECT_EQ(std::stoi(number), count + 1) << line;
    EXPECT_EQ(line.substr(2, 2), "  ");
    EXPECT_EQ(line.back(), '.') << line;
    const desk::SurfacePointer picture =
        desk::readPng(folder / "new" / "pictures" / (number + ".png"));
    ASSERT_TRUE(picture) << line;
    EXPECT_EQ(cairo_image_surface_get_width(picture.get()), 1440);
  }
  EXPECT_GE(count, 20);
  const std::vector<std::string> closeUps{"menu.png", "main-panel.png", "settings-panel.png"};
  const auto files = filesIn(folder / "new" / "pictures");
  EXPECT_EQ(files.size(), static_cast<std::size_t>(count) + closeUps.size());
  for (const std::string& name : closeUps) {
    EXPECT_TRUE(files.contains(name)) << name;
  }
  testing::internal::CaptureStdout();
  EXPECT_EQ(runTour((folder / "second").string()), 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), captions);
  EXPECT_TRUE(filesIn(folder / "second") == files);
}

TEST_F(RunTourTest, ReportsAnUnwritableDirectory) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(runTour("/dev/null/pictures"), 2);
  EXPECT_NE(testing::internal::GetCapturedStderr().find("/dev/null/pictures"), std::string::npos);
}

}  // namespace
}  // namespace orvane::showroom
