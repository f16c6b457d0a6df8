// The contents of both panels move up and fade in as their window opens: once, along one curve,
// whatever changes in the model at that moment.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/panels/Motion.hpp"
#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

class PanelEntranceTest : public PanelFixture {
 protected:
  /// The vertical places of some contents, and the opacity of one.
  struct Sample {
    std::vector<double> tops;
    double opacity = 0;
  };

  [[nodiscard]] Sample sample(const std::string& panel) {
    using ui::Role;
    if (panel == mainPanel) {
      return {{frameOf("Pin Dock").y, frameOf("DELL").y,
               element(Role::heading, "Prevent Dock Pop-Up")->frame.y},
              opacityOf("\"Pin Dock to a Display\"")};
    }
    return {{element(Role::heading, "Language", panel)->frame.y,
             element(Role::heading, "Support", panel)->frame.y, frameOf("Privacy Policy", panel).y},
            opacityOf("\"Privacy\"", panel)};
  }

  /// The panel opens now.
  void expectEntrance(const std::string& panel, double seconds) {
    constexpr double distance = 10;
    std::vector<double> progresses;
    std::vector<Sample> samples;
    double elapsed = 0;
    for (const double parameter : {0.0, 0.3, 0.6, 0.9, 1.0}) {
      const motion::Moment moment = motion::easeOut(parameter);
      machine.advance(moment.fraction * seconds - elapsed);
      elapsed = moment.fraction * seconds;
      progresses.push_back(moment.progress);
      samples.push_back(sample(panel));
    }
    machine.advance(2);
    EXPECT_FALSE(window(panel)->content->hasFrames());
    const Sample end = sample(panel);
    EXPECT_EQ(end.opacity, 1);
    for (std::size_t index = 0; index < samples.size(); ++index) {
      EXPECT_NEAR(samples[index].opacity, progresses[index], 0.001);
      for (std::size_t place = 0; place < end.tops.size(); ++place) {
        EXPECT_NEAR(samples[index].tops[place] - end.tops[place],
                    distance * (1 - progresses[index]), 1e-6)
            << place << " at " << progresses[index];
      }
    }
  }
  void expectMainEntrance() {
    application.reopen();
    expectEntrance(mainPanel, 0.32);
  }
  void expectSettingsEntrance() {
    ASSERT_TRUE(press("Settings"));
    expectEntrance(settingsPanel, 0.24);
  }
};

TEST_F(PanelEntranceTest, FollowsItsCurveWhenTheFirstDisplayIsSelectedAsItBegins) {
  ASSERT_FALSE(model().selectedDisplayID().value());
  expectMainEntrance();
  EXPECT_TRUE(model().selectedDisplayID().value());
}

TEST_F(PanelEntranceTest, FollowsItsCurveWhenTheStatusChangesAsItBegins) {
  application.terminate();
  machine.userDefaults.set("selectedDisplayID", "DISPLAY-3");
  application.launch();
  const OrvaneStatus before = model().status();
  expectMainEntrance();
  EXPECT_NE(model().status(), before);
}

TEST_F(PanelEntranceTest, FollowsItsCurveWhenThePermissionWasRevoked) {
  model().refreshDisplays();
  machine.permission.setTrusted(false);
  expectMainEntrance();
  EXPECT_EQ(model().status(), OrvaneStatus::permissionRequired);
}

TEST_F(PanelEntranceTest, FollowsItsCurveEachTimeAPanelOpens) {
  openMain();
  expectSettingsEntrance();
  ASSERT_TRUE(press("Close", settingsPanel));
  expectSettingsEntrance();
  ASSERT_TRUE(press("Close"));
  expectMainEntrance();
}

TEST_F(PanelEntranceTest, LeavesTitleBarAndHeaderInPlace) {
  application.reopen();
  ASSERT_TRUE(press("Settings"));
  const ui::Rect mainClose = frameOf("Close");
  const ui::Rect settingsClose = frameOf("Close", settingsPanel);
  EXPECT_EQ(opacityOf("\"Orvane\""), 1);
  EXPECT_EQ(opacityOf("\"Settings\"", settingsPanel), 1);
  machine.advance(1);
  EXPECT_EQ(frameOf("Close"), mainClose);
  EXPECT_EQ(frameOf("Close", settingsPanel), settingsClose);
}

TEST_F(PanelEntranceTest, IsImmediateWithReducedMotion) {
  machine.appearance.reducesMotion = true;
  application.reopen();
  ASSERT_TRUE(press("Settings"));
  for (const char* const panel : {mainPanel, settingsPanel}) {
    const Sample start = sample(panel);
    EXPECT_EQ(start.opacity, 1);
    EXPECT_FALSE(window(panel)->content->hasFrames());
    machine.advance(1);
    EXPECT_EQ(sample(panel).tops, start.tops);
  }
}

}  // namespace
}  // namespace orvane
