// What moves in the main panel, how long, and that frames come only while it does.
#include <gtest/gtest.h>

#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

constexpr double frame = 1.0 / 60;

class ContentViewAnimationTest : public PanelFixture {
 protected:
  [[nodiscard]] double pinButtonTop() { return frameOf("Pin Dock").y; }
  [[nodiscard]] bool hasFrames() { return window(mainPanel)->content->hasFrames(); }
};

TEST_F(ContentViewAnimationTest, ThePanelsSlideUpAndFadeInOnce) {
  application.reopen();
  const double start = pinButtonTop();
  EXPECT_TRUE(hasFrames());
  machine.advance(0.16);
  const double middle = pinButtonTop();
  machine.advance(0.2);
  const double end = pinButtonTop();
  EXPECT_NEAR(start - end, 10, 0.8);
  EXPECT_LT(middle, start);
  EXPECT_GT(middle, end);
  // It goes out slowly: at half the time more than half of the way is done.
  EXPECT_GT(start - middle, 5);
  // The first choice of a display comes with its own, longer spring.
  machine.advance(1);
  EXPECT_FALSE(hasFrames());
  EXPECT_NEAR(pinButtonTop(), end, 0.1);
}

TEST_F(ContentViewAnimationTest, TheTitleBarIsThereFromTheStart) {
  application.reopen();
  const ui::Rect close = frameOf("Close");
  machine.advance(1);
  EXPECT_EQ(frameOf("Close"), close);
}

TEST_F(ContentViewAnimationTest, ThePanelsEnterAnewWhenThePanelIsOpenedAgain) {
  openMain();
  const double end = pinButtonTop();
  press("Close");
  application.reopen();
  EXPECT_GT(pinButtonTop(), end + 5);
  machine.advance(0.4);
  EXPECT_EQ(pinButtonTop(), end);
}

TEST_F(ContentViewAnimationTest, WithReducedMotionEverythingIsThereAtOnce) {
  machine.appearance.reducesMotion = true;
  application.reopen();
  const double start = pinButtonTop();
  machine.advance(1);
  EXPECT_EQ(pinButtonTop(), start);
  EXPECT_FALSE(hasFrames());
}

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

TEST_F(ContentViewAnimationTest, TheChoiceOfADisplayTravelsAlongASpring) {
  openMain();
  press("DELL");
  machine.advance(3 * frame);
  const auto width = [this](std::size_t card) {
    return withRole(ui::Role::radioButton, mainPanel).at(card).frame.width;
  };
  EXPECT_GT(width(1), 176);
  EXPECT_LT(width(1), 176 * 1.012);
  EXPECT_LT(width(0), 176 * 1.012);
  EXPECT_EQ(drawn("symbol checkmark "), 2) << "one comes, the other goes";
  machine.advance(2);
  EXPECT_NEAR(width(0), 176, 1e-3);
  EXPECT_NEAR(width(1), 176 * 1.012, 1e-3);
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
