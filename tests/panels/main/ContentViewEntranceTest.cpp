// How the panels of the main window slide up and fade in: once, along one curve, whatever the model
// learns at that moment.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/panels/Motion.hpp"
#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

constexpr double entranceSeconds = 0.32;
constexpr double entranceOffset = 10;

class ContentViewEntranceTest : public PanelFixture {
 protected:
  /// What enters, as it is at some moment.
  struct Sight {
    /// Of the pin button, a card and the pop-up panel's title.
    std::vector<double> tops;
    double opacity = 0;
  };

  [[nodiscard]] double titleTop() {
    for (const ui::SemanticsNode& node : withRole(ui::Role::heading, mainPanel)) {
      if (node.label == "Prevent Dock Pop-Up") {
        return node.frame.y;
      }
    }
    return -1;
  }
  [[nodiscard]] Sight look() {
    return {{frameOf("Pin Dock").y, frameOf("DELL").y, titleTop()},
            opacityOf("\"Pin Dock to a Display\"")};
  }

  /// Opens the main panel and holds what is seen of it against the curve.
  void expectEntrance() {
    std::vector<double> progresses;
    std::vector<Sight> sights;
    application.reopen();
    double elapsed = 0;
    for (const double parameter : {0.0, 0.3, 0.6, 0.9, 1.0}) {
      const motion::Moment moment = motion::easeOut(parameter);
      machine.advance(moment.share * entranceSeconds - elapsed);
      elapsed = moment.share * entranceSeconds;
      progresses.push_back(moment.progress);
      sights.push_back(look());
    }
    machine.advance(2);
    EXPECT_FALSE(window(mainPanel)->content->hasFrames());
    const Sight end = look();
    EXPECT_EQ(end.opacity, 1);
    for (std::size_t index = 0; index < sights.size(); ++index) {
      const double progress = progresses[index];
      SCOPED_TRACE("progress " + std::to_string(progress));
      EXPECT_NEAR(sights[index].opacity, progress, 0.001);
      for (std::size_t place = 0; place < end.tops.size(); ++place) {
        EXPECT_NEAR(sights[index].tops[place] - end.tops[place], entranceOffset * (1 - progress),
                    1e-6)
            << place;
      }
    }
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
