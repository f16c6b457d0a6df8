// The stage of the tour: its hand, and its honesty.
#include <filesystem>
#include <sstream>

#include <gtest/gtest.h>

#include "desk/desktop/StandardDisplays.hpp"
#include "desk/tour/TourStage.hpp"

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
  EXPECT_NEAR(stage.machine().pointer.place().x, 1500, 1e-6);
  EXPECT_NEAR(stage.machine().pointer.place().y, 300, 1e-6);
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

}  // namespace
}  // namespace orvane::desk
