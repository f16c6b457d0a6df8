// The commands of the tour, in scripts on two displays.
#include <filesystem>
#include <sstream>

#include <gtest/gtest.h>

#include "desk/canvas/PngFile.hpp"
#include "desk/script/ScriptProgram.hpp"
#include "showroom/tour/TourStage.hpp"

namespace orvane::showroom {
namespace {

using desk::script::ScriptProgram;

class TourStageTest : public testing::Test {
 protected:
  TourStageTest() { std::filesystem::create_directories(folder); }
  ~TourStageTest() override { std::filesystem::remove_all(folder); }

  ScriptProgram::Status run(const std::string& script) {
    TourStage stage(folder);
    ScriptProgram::Settings settings;
    stage.addCommands(settings.commands);
    std::istringstream none;
    std::istringstream lines(
        "display attach 1 frame=0,0,1024,640 uuid=A name=Built-in builtin\n"
        "display attach 2 frame=1024,0,1120,700 uuid=B name=Right\n" +
        script);
    return ScriptProgram(std::move(settings), none, output, errors).run(lines, "tour");
  }
  void expectHolds(const std::string& script) {
    EXPECT_EQ(run(script), ScriptProgram::held) << errors.str();
  }

  std::filesystem::path folder = std::filesystem::path(testing::TempDir()) /
                                 (std::string("orvane-stage-") +
                                  testing::UnitTest::GetInstance()->current_test_info()->name());
  std::ostringstream output;
  std::ostringstream errors;
};

TEST_F(TourStageTest, WritesNumberedCaptionsAndPictures) {
  expectHolds("caption Once upon a time.\ncaption The end.");
  EXPECT_EQ(output.str(), "01  Once upon a time.\n02  The end.\n");
  EXPECT_TRUE(std::filesystem::exists(folder / "01.png"));
  EXPECT_TRUE(std::filesystem::exists(folder / "02.png"));
}

TEST_F(TourStageTest, StopsAtAnUnwritablePicture) {
  std::filesystem::remove_all(folder);
  EXPECT_EQ(run("caption Where?"), ScriptProgram::broken);
  EXPECT_EQ(output.str(), "");
  EXPECT_NE(errors.str().find("01.png"), std::string::npos);
}

TEST_F(TourStageTest, WalksInSmallStepsThatTakeTime) {
  expectHolds(R"(
walk 1500 300
expect pointer {"x":1500,"y":300,"display":2}
expect counters.hardwareMovements 25
expect clock.now 0.5
wait until 10:08
expect clock.now 36480)");
  EXPECT_EQ(run("wait until 1008"), ScriptProgram::broken);
}

TEST_F(TourStageTest, PressesAgainstTheEdgeSoThatTheDockMoves) {
  expectHolds(R"(
touch 2 1 0
expect dock.display 2
rest 1
expect pointer.display 1
expect dock.reveals {"2":1})");
  EXPECT_EQ(run("touch 3 1 0"), ScriptProgram::broken);
}

TEST_F(TourStageTest, ClicksControlsAndMenuItems) {
  expectHolds(R"(
trust on
launch
click icon 1
expect menu.open true
click control "Settings" menu
advance 1
click control "Language" settings
click item "Chinese"
expect model.appLanguage "chinese"
key escape
expect windows.# 1
click control "固定 Dock" main
expect guard.running true)");
}

TEST_F(TourStageTest, StopsAtAMissingControl) {
  EXPECT_EQ(run("launch\nclick icon 1\nclick control \"Fly\" menu"), ScriptProgram::broken);
  EXPECT_NE(errors.str().find("\"Fly\" in menu"), std::string::npos);
}

TEST_F(TourStageTest, WritesACloseUpAtTwoPixelsPerPoint) {
  expectHolds("trust on\nlaunch\nreopen\nadvance 1\nclose-up panel main");
  const desk::SurfacePointer picture = desk::readPng(folder / "panel.png");
  ASSERT_TRUE(picture);
  // 700 by 516 points with a margin of 28, within the screen.
  EXPECT_EQ(cairo_image_surface_get_width(picture.get()), 2 * (700 + 56));
  EXPECT_EQ(cairo_image_surface_get_height(picture.get()), 2 * (516 + 56));
  EXPECT_EQ(run("close-up nothing settings"), ScriptProgram::broken);
  EXPECT_FALSE(std::filesystem::exists(folder / "nothing.png"));
}

}  // namespace
}  // namespace orvane::showroom
