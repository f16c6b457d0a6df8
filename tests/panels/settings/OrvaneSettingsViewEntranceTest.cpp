// How the cards of the settings panel slide up and fade in.
#include <gtest/gtest.h>

#include "tests/panels/EntranceFixture.hpp"

namespace orvane {
namespace {

class OrvaneSettingsViewEntranceTest : public EntranceFixture {
 protected:
  /// The first and the last heading, and a button.
  [[nodiscard]] Sight look() {
    return {{headingTop("Language", settingsPanel), headingTop("Support", settingsPanel),
             frameOf("Privacy Policy", settingsPanel).y},
            opacityOf("\"Privacy\"", settingsPanel)};
  }
  /// Opens the settings from the main panel.
  void expectEntrance() {
    ASSERT_TRUE(press("Settings"));
    EntranceFixture::expectEntrance(settingsPanel, 0.24, 10, [this] { return look(); });
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
  const double title = headingTop("Settings", settingsPanel);
  const ui::Rect close = frameOf("Close", settingsPanel);
  EXPECT_EQ(opacityOf("\"Settings\"", settingsPanel), 1);
  machine.advance(1);
  EXPECT_EQ(headingTop("Settings", settingsPanel), title);
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
