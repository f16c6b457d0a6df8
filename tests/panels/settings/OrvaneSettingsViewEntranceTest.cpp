// How the cards of the settings panel slide up and fade in.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/panels/Motion.hpp"
#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

constexpr double entranceSeconds = 0.24;
constexpr double entranceOffset = 10;

class OrvaneSettingsViewEntranceTest : public PanelFixture {
 protected:
  struct Sight {
    /// Of the first and the last heading and of a button.
    std::vector<double> tops;
    double opacity = 0;
  };

  [[nodiscard]] double headingTop(const std::string& label) {
    for (const ui::SemanticsNode& node : withRole(ui::Role::heading, settingsPanel)) {
      if (node.label == label) {
        return node.frame.y;
      }
    }
    return -1;
  }
  [[nodiscard]] Sight look() {
    return {
        {headingTop("Language"), headingTop("Support"), frameOf("Privacy Policy", settingsPanel).y},
        opacityOf("\"Privacy\"", settingsPanel)};
  }

  /// Opens the settings from the main panel and holds what is seen of them against the curve.
  void expectEntrance() {
    std::vector<double> progresses;
    std::vector<Sight> sights;
    ASSERT_TRUE(press("Settings"));
    double elapsed = 0;
    for (const double parameter : {0.0, 0.3, 0.6, 0.9, 1.0}) {
      const motion::Moment moment = motion::easeOut(parameter);
      machine.advance(moment.share * entranceSeconds - elapsed);
      elapsed = moment.share * entranceSeconds;
      progresses.push_back(moment.progress);
      sights.push_back(look());
    }
    machine.advance(1);
    EXPECT_FALSE(window(settingsPanel)->content->hasFrames());
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

TEST_F(OrvaneSettingsViewEntranceTest, FollowsItsCurve) {
  openMain();
  expectEntrance();
}

TEST_F(OrvaneSettingsViewEntranceTest, FollowsItsCurveAnewWhenThePanelIsOpenedAgain) {
  openSettings();
  ASSERT_TRUE(press("Close", settingsPanel));
  expectEntrance();
}

TEST_F(OrvaneSettingsViewEntranceTest, LeavesTheHeaderWhereItIs) {
  openMain();
  ASSERT_TRUE(press("Settings"));
  const double title = headingTop("Settings");
  const ui::Rect close = frameOf("Close", settingsPanel);
  EXPECT_EQ(opacityOf("\"Settings\"", settingsPanel), 1);
  machine.advance(1);
  EXPECT_EQ(headingTop("Settings"), title);
  EXPECT_EQ(frameOf("Close", settingsPanel), close);
}

TEST_F(OrvaneSettingsViewEntranceTest, IsOverAtOnceWithReducedMotion) {
  openMain();
  machine.appearance.reducesMotion = true;
  ASSERT_TRUE(press("Settings"));
  const Sight start = look();
  EXPECT_EQ(start.opacity, 1);
  machine.advance(1);
  EXPECT_EQ(look().tops, start.tops);
}

}  // namespace
}  // namespace orvane
