// How the panels of the main window slide up and fade in: once, along one curve, whatever the model
// learns at that moment.
#include <gtest/gtest.h>

#include "tests/panels/EntranceFixture.hpp"

namespace orvane {
namespace {

class ContentViewEntranceTest : public EntranceFixture {
 protected:
  /// The pin button, a card and the pop-up panel's title.
  [[nodiscard]] Sight look() {
    return {
        {frameOf("Pin Dock").y, frameOf("DELL").y, headingTop("Prevent Dock Pop-Up", mainPanel)},
        opacityOf("\"Pin Dock to a Display\"")};
  }
  /// Opens the main panel.
  void expectEntrance() {
    application.reopen();
    EntranceFixture::expectEntrance(mainPanel, 0.32, 10, [this] { return look(); });
  }
};

TEST_F(ContentViewEntranceTest, FollowsItsCurveWhenTheFirstDisplayIsChosenAsItBegins) {
  ASSERT_FALSE(model().selectedDisplayID().value());
  expectEntrance();
  EXPECT_TRUE(model().selectedDisplayID().value());
}

TEST_F(ContentViewEntranceTest, FollowsItsCurveWhenAStoredTargetIsFoundAsItBegins) {
  application.terminate();
  machine.userDefaults.set("selectedDisplayID", "DISPLAY-3");
  application.launch();
  const OrvaneStatus before = model().status();
  expectEntrance();
  EXPECT_EQ(model().selectedDisplayID().value(), "DISPLAY-3");
  EXPECT_NE(model().status(), before);
}

TEST_F(ContentViewEntranceTest, FollowsItsCurveWhenTheDisplaysAreKnownBefore) {
  model().refreshDisplays();
  expectEntrance();
}

TEST_F(ContentViewEntranceTest, FollowsItsCurveWhenThePermissionHasGoneMeanwhile) {
  model().refreshDisplays();
  machine.permission.setTrusted(false);
  expectEntrance();
  EXPECT_EQ(model().status(), OrvaneStatus::permissionRequired);
}

TEST_F(ContentViewEntranceTest, FollowsItsCurveAnewWhenThePanelIsOpenedAgain) {
  openMain();
  ASSERT_TRUE(press("Close"));
  expectEntrance();
}

TEST_F(ContentViewEntranceTest, LeavesTheTitleBarWhereItIs) {
  application.reopen();
  const ui::Rect close = frameOf("Close");
  machine.advance(1);
  EXPECT_EQ(frameOf("Close"), close);
}

TEST_F(ContentViewEntranceTest, IsOverAtOnceWithReducedMotion) {
  machine.appearance.reducesMotion = true;
  application.reopen();
  const Sight start = look();
  EXPECT_EQ(start.opacity, 1);
  EXPECT_FALSE(window(mainPanel)->content->hasFrames());
  machine.advance(1);
  EXPECT_EQ(look().tops, start.tops);
}

}  // namespace
}  // namespace orvane
