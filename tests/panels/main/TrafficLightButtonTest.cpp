// The round buttons of the window's own title bar.
#include "Orvane/panels/main/TrafficLightButton.hpp"
#include "tests/panels/ComponentFixture.hpp"
#include "tests/panels/Motion.hpp"

namespace orvane {
namespace {

using TrafficLightButtonTest = ComponentFixture;

TEST_F(TrafficLightButtonTest, ClosingIsRedAndMinimisingYellow) {
  show(TrafficLightButton::close(true, "Close", [] {}), {14, 14});
  EXPECT_TRUE(draws("fill ellipse(0 0 14 14) rgba(1 0.3 0.29 1)")) << drawing();
  EXPECT_TRUE(draws("rgba(0.86 0.16 0.16 0.55) width 0.7\n")) << drawing();
  EXPECT_TRUE(draws("symbol xmark 8.5/800 rgba(0.38 0.04 0.04 1)")) << drawing();
  show(TrafficLightButton::minimise(true, "Minimise", [] {}), {14, 14});
  EXPECT_TRUE(draws("fill ellipse(0 0 14 14) rgba(1 0.7 0.04 1)")) << drawing();
  EXPECT_TRUE(draws("rgba(0.84 0.54 0.02 0.55) width 0.7\n")) << drawing();
  EXPECT_TRUE(draws("symbol minus 8.5/800 rgba(0.56 0.34 0 1)")) << drawing();
}

TEST_F(TrafficLightButtonTest, HidesItsSymbolUntilThePairIsHovered) {
  show(TrafficLightButton::close(false, "Close", [] {}), {14, 14});
  EXPECT_FALSE(draws("symbol xmark 8.5/800 rgba(0.38 0.04 0.04 1)")) << drawing();
}

TEST_F(TrafficLightButtonTest, GrowsAndCastsAShadowOfItsColourOnlyWhileItIsHoveredItself) {
  show(TrafficLightButton::close(true, "Close", [] {}), {40, 40});
  EXPECT_FALSE(draws("shadow ")) << drawing();
  hover({20, 20});
  EXPECT_TRUE(draws("rgba(1 0.3 0.29 0.26)")) << drawing();
  EXPECT_TRUE(draws("scale 1.1 1.1 ")) << drawing();
  test.host->pointerExited();
  rest();
  EXPECT_FALSE(draws("shadow ")) << drawing();
  EXPECT_FALSE(draws("scale")) << drawing();
}

TEST_F(TrafficLightButtonTest, DarkensWhilePressed) {
  const std::string shade = "fill ellipse(13 13 14 14) rgba(0 0 0 0.2)";
  show(TrafficLightButton::close(true, "Close", [] {}), {40, 40});
  hover({20, 20});
  EXPECT_FALSE(draws(shade)) << drawing();
  hold({20, 20});
  EXPECT_TRUE(draws(shade)) << drawing();
  test.host->pointerUp({20, 20});
  rest();
  EXPECT_FALSE(draws(shade)) << drawing();
}

TEST_F(TrafficLightButtonTest, FollowsThePointerWithinAMoment) {
  show(TrafficLightButton::close(true, "Close", [] {}), {40, 40});
  const auto growth = [this] { return (test.element("Close")->frame.width / 14 - 1) / 0.1; };
  const motion::Moment moment = motion::easeOut(0.4);
  test.host->pointerMoved({20, 20});
  advance(0.14 * moment.share);
  EXPECT_NEAR(growth(), moment.progress, 1e-6);
  advance(0.14);
  EXPECT_NEAR(growth(), 1, 1e-9);
  test.host->pointerExited();
  advance(0.14 * moment.share);
  EXPECT_NEAR(growth(), 1 - moment.progress, 1e-6);
}

TEST_F(TrafficLightButtonTest, IsAButtonWithALabelThatRunsItsAction) {
  int runs = 0;
  show(TrafficLightButton::close(false, "Close", [&runs] { ++runs; }), {14, 14});
  const auto element = test.element("Close");
  ASSERT_TRUE(element);
  EXPECT_EQ(element->role, ui::Role::button);
  test.click({7, 7});
  EXPECT_EQ(runs, 1);
}

}  // namespace
}  // namespace orvane
