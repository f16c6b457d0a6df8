// What moves in the main panel, how long, and that frames come only while it does. How the panels
// enter is in ContentViewEntranceTest.cpp.
#include <gtest/gtest.h>

#include "tests/panels/Motion.hpp"
#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

constexpr double frame = 1.0 / 60;
constexpr double statusSeconds = 0.22;
constexpr double springResponse = 0.28;
constexpr double springFraction = 0.86;
/// In seconds after a spring has begun.
constexpr double springMoments[] = {0.05, 0.11, 0.2};

class ContentViewAnimationTest : public PanelFixture {
 protected:
  /// Calls with the progress that is due, from 0 to 1, at each of some moments of the motion along
  /// the curve of the status, which begins now.
  template <typename Check>
  void followStatus(const Check& check) {
    double elapsed = 0;
    for (const double parameter : {0.25, 0.5, 0.8}) {
      const motion::Moment moment = motion::easeInOut(parameter);
      machine.advance(moment.share * statusSeconds - elapsed);
      elapsed = moment.share * statusSeconds;
      check(moment.progress);
    }
  }
  /// The same along the spring of the selection and the mode.
  template <typename Check>
  void followSpring(const Check& check) {
    double elapsed = 0;
    for (const double moment : springMoments) {
      machine.advance(moment - elapsed);
      elapsed = moment;
      check(motion::spring(springResponse, springFraction, moment));
    }
  }
  /// How much of its way the button has come in from the trailing edge: it is 190 wide and ends up
  /// at 465.
  [[nodiscard]] double dockSettingsProgress() {
    return 1 - (frameOf("Open Dock Settings").x - 465) / 190;
  }
  /// How far the pin button's fill is on its way from blue to red, by its lower end's red.
  [[nodiscard]] double redness() {
    for (const std::string& line : drawing(mainPanel)) {
      const std::string lowerEnd = ", 1 rgba(";
      const std::size_t place = line.find(lowerEnd);
      if (line.find(" 610 38 r8 continuous)") != std::string::npos && place != std::string::npos) {
        return std::stod(line.substr(place + lowerEnd.size()));
      }
    }
    return -1;
  }
  [[nodiscard]] double cardWidth(std::size_t card) {
    return withRole(ui::Role::radioButton, mainPanel).at(card).frame.width;
  }
  [[nodiscard]] bool hasFrames() { return window(mainPanel)->content->hasFrames(); }
};

TEST_F(ContentViewAnimationTest, TheDockSettingsButtonComesFromTheTrailingEdgeAndFades) {
  openMain();
  press("Prevent Dock Pop-Up");
  machine.advance(2 * frame);
  const ui::Rect early = frameOf("Open Dock Settings");
  EXPECT_GT(early.x, 465);
  // It comes from behind the panel's edge: nothing is painted beyond 675 points.
  EXPECT_GE(drawn("clip rectangle(44 "), 1);
  EXPECT_GE(drawn(" 631 36)"), 1);
  machine.advance(0.1);
  const ui::Rect later = frameOf("Open Dock Settings");
  EXPECT_LT(later.x, early.x);
  machine.advance(1);
  EXPECT_NEAR(frameOf("Open Dock Settings").x, 465, 0.01);
  EXPECT_FALSE(hasFrames());
  press("Allow Dock Pop-Up");
  machine.advance(2 * frame);
  // On its way out it can still be seen, and no longer be pressed.
  EXPECT_FALSE(element("Open Dock Settings"));
  EXPECT_EQ(drawn("text \"Open Dock Settings\""), 1);
  machine.advance(1);
  EXPECT_EQ(drawn("text \"Open Dock Settings\""), 0);
}

TEST_F(ContentViewAnimationTest, TheStatusChangesAlongItsOwnCurve) {
  openMain();
  ASSERT_TRUE(press("Pin Dock"));
  EXPECT_EQ(redness(), 0);
  followStatus([this](double progress) { EXPECT_NEAR(redness(), progress, 0.001); });
  machine.advance(1);
  EXPECT_EQ(redness(), 1);
  EXPECT_FALSE(hasFrames());
}

TEST_F(ContentViewAnimationTest, TheModeChangesAlongASpring) {
  openMain();
  ASSERT_TRUE(press("Pin Dock"));
  machine.advance(1);
  const OrvaneStatus before = model().status();
  ASSERT_TRUE(press("Prevent Dock Pop-Up"));
  ASSERT_EQ(model().status(), before) << "the mode is all that changes";
  EXPECT_NEAR(dockSettingsProgress(), 0, 1e-6);
  followSpring([this](double progress) { EXPECT_NEAR(dockSettingsProgress(), progress, 1e-6); });
  machine.advance(1);
  EXPECT_FALSE(hasFrames());
}

TEST_F(ContentViewAnimationTest, AModeThatChangesWithTheStatusFollowsTheStatus) {
  openMain();
  const OrvaneStatus before = model().status();
  ASSERT_TRUE(press("Prevent Dock Pop-Up"));
  ASSERT_NE(model().status(), before);
  followStatus([this](double progress) { EXPECT_NEAR(dockSettingsProgress(), progress, 1e-6); });
  machine.advance(0.1);
  EXPECT_NEAR(dockSettingsProgress(), 1, 1e-9);
}

TEST_F(ContentViewAnimationTest, TheSelectionChangesAlongASpringThatNeedsNoTap) {
  openMain();
  model().selectDisplay("DISPLAY-2");
  followSpring([this](double progress) {
    EXPECT_NEAR(cardWidth(0), 176 * (1 + 0.012 * (1 - progress)), 1e-6);
    EXPECT_NEAR(cardWidth(1), 176 * (1 + 0.012 * progress), 1e-6);
  });
}

TEST_F(ContentViewAnimationTest, ATapOnACardTravelsAlongTheSpringOfTheSelection) {
  openMain();
  ASSERT_TRUE(press("DELL"));
  followSpring([this](double progress) {
    EXPECT_NEAR(cardWidth(0), 176 * (1 + 0.012 * (1 - progress)), 1e-6);
    EXPECT_NEAR(cardWidth(1), 176 * (1 + 0.012 * progress), 1e-6);
    EXPECT_EQ(drawn("symbol checkmark "), 2) << "one comes, the other goes";
  });
  machine.advance(2);
  EXPECT_NEAR(cardWidth(0), 176, 1e-3);
  EXPECT_NEAR(cardWidth(1), 176 * 1.012, 1e-3);
  EXPECT_EQ(drawn("symbol checkmark "), 1);
  EXPECT_FALSE(hasFrames());
}

TEST_F(ContentViewAnimationTest, AnOpenPanelAtRestDrawsNothing) {
  openMain();
  machine.advance(2);
  window(mainPanel)->content->host().takeDirtyRects();
  for (int second = 0; second < 10; ++second) {
    machine.advance(1);
    EXPECT_FALSE(hasFrames());
  }
  EXPECT_TRUE(window(mainPanel)->content->host().takeDirtyRects().empty());
}

}  // namespace
}  // namespace orvane
