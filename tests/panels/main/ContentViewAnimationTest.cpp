// The animations of the main panel: their curves, that frames are drawn only during one, and that
// the pointer over a control repaints only that control. The entrance is tested in
// PanelEntranceTest.cpp.
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
  /// Calls `check` with the expected progress, from 0 to 1, at some moments of an animation along
  /// the curve of the status, which begins now.
  template <typename Check>
  void followStatus(const Check& check) {
    double elapsed = 0;
    for (const double parameter : {0.25, 0.5, 0.8}) {
      const motion::Moment moment = motion::easeInOut(parameter);
      machine.advance(moment.fraction * statusSeconds - elapsed);
      elapsed = moment.fraction * statusSeconds;
      check(moment.progress);
    }
  }
  /// The same for the spring of the selection and the mode.
  template <typename Check>
  void followSpring(const Check& check) {
    double elapsed = 0;
    for (const double moment : springMoments) {
      machine.advance(moment - elapsed);
      elapsed = moment;
      check(motion::spring(springResponse, springFraction, moment));
    }
  }
  /// Of the button's way from the trailing edge, from 0 to 1: it is 190 wide and ends at 465.
  [[nodiscard]] double dockSettingsProgress() {
    return 1 - (frameOf("Open Dock Settings").x - 465) / 190;
  }
  /// The red at the lower end of the pin button's fill, which changes from blue to red.
  [[nodiscard]] double redness() {
    for (const std::string& line : drawnLines(mainPanel)) {
      const std::string lowerEnd = ", 1 rgba(";
      const std::size_t place = line.find(lowerEnd);
      if (line.find(" 610 38 r8 continuous)") != std::string::npos && place != std::string::npos) {
        return std::stod(line.substr(place + lowerEnd.size()));
      }
    }
    return -1;
  }
  /// That the first card shrinks as the second grows, along the spring of the selection.
  void expectSelectionToMove() {
    followSpring([](double progress) {
      EXPECT_NEAR(frameOf("Display").width, 176 * (1 + 0.012 * (1 - progress)), 1e-6);
      EXPECT_NEAR(frameOf("DELL").width, 176 * (1 + 0.012 * progress), 1e-6);
      EXPECT_EQ(drawn("symbol checkmark "), 2) << "one appears, the other disappears";
    });
    machine.advance(2);
    EXPECT_EQ(drawn("symbol checkmark "), 1);
    EXPECT_FALSE(hasFrames());
  }
  [[nodiscard]] bool hasFrames() { return window(mainPanel)->content->hasFrames(); }
};

TEST_F(ContentViewAnimationTest, TheDockSettingsButtonSlidesInFromTheTrailingEdge) {
  openMain();
  press("Prevent Dock Pop-Up");
  machine.advance(2 * frame);
  const ui::Rect early = frameOf("Open Dock Settings");
  EXPECT_GT(early.x, 465);
  // It slides in from the panel's edge: nothing is painted beyond 675 points.
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
  // While it disappears it is still drawn, but cannot be pressed.
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

TEST_F(ContentViewAnimationTest, TheSelectionChangesAlongASpringHoweverItIsMade) {
  openMain();
  model().selectDisplay("DISPLAY-2");
  expectSelectionToMove();
  model().selectDisplay("DISPLAY-1");
  machine.advance(2);
  ASSERT_TRUE(press("DELL"));
  expectSelectionToMove();
}

class HoverDamageTest : public PanelFixture {
 protected:
  HoverDamageTest() {
    openMain();
    hover("Settings");
    machine.advance(10);
    host().takeDirtyRects();
  }

  ui::ViewHost& host() { return window(mainPanel)->content->host(); }

  /// That a movement to the point repaints part of the area until all animations end.
  void expectDamageWithin(const ui::Rect& area, ui::Point point) {
    const CGPoint corner = server().topLeftOf(*window(mainPanel));
    moveTo({corner.x + point.x, corner.y + point.y});
    ui::Rect damage;
    for (int count = 0; count <= 30; ++count) {
      machine.advance(frame);
      for (const ui::Rect& rect : host().takeDirtyRects()) {
        damage = damage.united(rect);
      }
    }
    EXPECT_EQ(damage.isEmpty(), area.isEmpty()) << point.x << " " << point.y;
    EXPECT_EQ(area.united(damage), area) << point.x << " " << point.y;
  }
};

TEST_F(HoverDamageTest, IsThatOfTheControlsThatThePointerEntersAndLeaves) {
  // Of a card scaled by 1.012, with its border and a point for antialiasing.
  constexpr double cardMargin = 4;
  // Of the shadow of a hovered light.
  constexpr double lightMargin = 12;
  const ui::Rect first = frameOf("DELL");
  const ui::Rect second = frameOf("LG");
  const ui::Rect lights = frameOf("Close").united(frameOf("Minimise")).inset(-lightMargin);
  expectDamageWithin({}, {350, 100});
  expectDamageWithin({}, {360, 100});
  expectDamageWithin(first.inset(-cardMargin), first.center());
  expectDamageWithin(first.united(second).inset(-cardMargin), second.center());
  expectDamageWithin(second.inset(-cardMargin), {360, 100});
  expectDamageWithin(lights, frameOf("Close").center());
}

}  // namespace
}  // namespace orvane
