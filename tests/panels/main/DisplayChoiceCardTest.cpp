// The card that shows one display.
#include "Orvane/panels/main/DisplayChoiceCard.hpp"
#include "tests/panels/ComponentFixture.hpp"
#include "tests/panels/Motion.hpp"

namespace orvane {
namespace {

class DisplayChoiceCardTest : public ComponentFixture {
 protected:
  [[nodiscard]] DisplayChoiceCard card(bool isSelected) {
    DisplayChoiceCard result;
    result.display.name = "Studio";
    result.fallbackLabel = "Fallback";
    result.roleLabel = "Left Display";
    result.isSelected = isSelected;
    result.action = [this] { ++taps; };
    return result;
  }
  void showCard(bool isSelected) { show(card(isSelected), {200, 160}); }

  /// How far the card has grown, from 0 to 1.
  [[nodiscard]] double growth() const {
    const auto element = test.element("Studio");
    return element ? (element->frame.width / 176 - 1) / 0.012 : -1;
  }

  int taps = 0;
};

TEST_F(DisplayChoiceCardTest, IsQuietWhileNotSelected) {
  showCard(false);
  EXPECT_TRUE(draws("fill rounded(12 9 176 142 r12 continuous) rgba(1 1 1 0.075)")) << drawing();
  EXPECT_TRUE(draws("rgba(0 0 0 0.065) width 0.8\n")) << drawing();
  EXPECT_TRUE(draws("text \"Studio\" 13/500 rgba(0 0 0 0.85)")) << drawing();
  EXPECT_TRUE(draws("text \"Left Display\" 11/600 rgba(0 0 0 0.6)")) << drawing();
  EXPECT_FALSE(draws("checkmark")) << drawing();
}

TEST_F(DisplayChoiceCardTest, CarriesTheAccentColourAndABadgeWhenSelected) {
  showCard(true);
  rest();
  EXPECT_TRUE(draws("rgba(1 1 1 0.2)")) << drawing();
  EXPECT_TRUE(draws("rgba(0 0.478 1 1) width 1.3\n")) << drawing();
  EXPECT_TRUE(draws("text \"Studio\" 13/700 rgba(0 0.478 1 1)")) << drawing();
  EXPECT_TRUE(draws("text \"Left Display\" 11/600 rgba(0 0.478 1 1)")) << drawing();
  EXPECT_TRUE(draws("symbol checkmark 12/900 rgba(1 1 1 1)")) << drawing();
  EXPECT_TRUE(draws("fill ellipse(160 17 20 20) rgba(0 0.478 1 1)")) << drawing();
}

TEST_F(DisplayChoiceCardTest, IsRecolouredAtOnceInTheDark) {
  showCard(false);
  appear(true);
  EXPECT_TRUE(draws("rgba(1 1 1 0.18) width 0.8\n")) << drawing();
  EXPECT_TRUE(draws("text \"Studio\" 13/500 rgba(1 1 1 0.85)")) << drawing();
  hover({100, 80});
  EXPECT_TRUE(draws("rgba(1 1 1 0.14)")) << drawing();
}

TEST_F(DisplayChoiceCardTest, GrowsALittleWhileHoveredOrSelectedAndNoMoreForBoth) {
  showCard(false);
  EXPECT_FALSE(draws("1.012")) << drawing();
  hover({100, 80});
  EXPECT_TRUE(draws("1.012")) << drawing();
  showCard(true);
  rest();
  const std::string both = drawing();
  EXPECT_NE(both.find("1.012"), std::string::npos) << both;
  test.host->pointerExited();
  rest();
  EXPECT_EQ(drawing(), both);
}

TEST_F(DisplayChoiceCardTest, FollowsThePointerWithinAMoment) {
  showCard(false);
  const motion::Moment moment = motion::easeOut(0.4);
  test.host->pointerMoved({100, 80});
  advance(0.14 * moment.share);
  EXPECT_NEAR(growth(), moment.progress, 1e-6);
  advance(0.14);
  EXPECT_NEAR(growth(), 1, 1e-9);
  test.host->pointerExited();
  advance(0.14 * moment.share);
  EXPECT_NEAR(growth(), 1 - moment.progress, 1e-6);
}

TEST_F(DisplayChoiceCardTest, LetsWhatATapChangesTravelAlongASpring) {
  bool isSelected = false;
  test.host->setSize({200, 160});
  test.show([&](const ui::Environment&) {
    DisplayChoiceCard result = card(isSelected);
    result.action = [&isSelected] { isSelected = true; };
    return ui::View(result);
  });
  // Pressed without a pointer that would raise the card by itself.
  test.host->perform(test.element("Studio")->id, ui::SemanticsAction::press);
  advance(0);
  EXPECT_NEAR(growth(), 0, 1e-9);
  constexpr double step = 0.06;
  for (int moment = 1; moment <= 3; ++moment) {
    advance(step);
    EXPECT_NEAR(growth(), motion::spring(0.24, 0.82, moment * step), 1e-6);
  }
}

TEST_F(DisplayChoiceCardTest, LetsItsBadgeGrowFromFourFifthsAndFadeIn) {
  bool isSelected = false;
  test.host->setSize({200, 160});
  test.show([&](const ui::Environment&) {
    DisplayChoiceCard result = card(isSelected);
    result.action = [&isSelected] { isSelected = true; };
    return ui::View(result);
  });
  // The badge is drawn last.
  const auto last = [this](const std::string& mark) {
    const std::string text = drawing();
    const std::size_t place = text.rfind(mark);
    return place == std::string::npos ? -1 : std::stod(text.substr(place + mark.size()));
  };
  test.host->perform(test.element("Studio")->id, ui::SemanticsAction::press);
  advance(0);
  for (const double moment : {0.05, 0.1}) {
    advance(0.05);
    const double presence = motion::spring(0.24, 0.82, moment);
    EXPECT_NEAR(last("transform scale "), 0.82 + 0.18 * presence, 0.001) << drawing();
    EXPECT_NEAR(last(" opacity "), presence, 0.001) << drawing();
  }
  rest();
  EXPECT_EQ(last("transform scale "), 1.012) << "the card's own";
  EXPECT_FALSE(draws(" opacity ")) << drawing();
  EXPECT_TRUE(draws("symbol checkmark")) << drawing();
}

TEST_F(DisplayChoiceCardTest, DarkensWhilePressedAndGrowsNoMore) {
  const std::string shade = "fill rounded(12 9 176 142 r12 continuous) rgba(0 0 0 0.08)";
  showCard(false);
  hover({100, 80});
  EXPECT_FALSE(draws(shade)) << drawing();
  hold({100, 80});
  EXPECT_TRUE(draws(shade)) << drawing();
  EXPECT_NEAR(growth(), 1, 1e-9);
  appear(true);
  EXPECT_TRUE(draws("continuous) rgba(0 0 0 0.2)")) << drawing();
  appear(false);
  test.host->pointerDragged({5, 80});
  rest();
  EXPECT_FALSE(draws(shade)) << drawing();
}

TEST_F(DisplayChoiceCardTest, RunsItsActionForATapAnywhereOnIt) {
  showCard(false);
  test.click({14, 80});
  test.click({186, 148});
  EXPECT_EQ(taps, 2);
  test.click({5, 80});
  EXPECT_EQ(taps, 2);
}

TEST_F(DisplayChoiceCardTest, FallsBackToItsLabelForADisplayWithoutAName) {
  DisplayChoiceCard nameless = card(false);
  nameless.display.name.clear();
  show(nameless, {200, 160});
  EXPECT_TRUE(draws("text \"Fallback\" 13/500")) << drawing();
  const auto element = test.element("Fallback");
  ASSERT_TRUE(element);
  EXPECT_EQ(element->role, ui::Role::radioButton);
  EXPECT_EQ(element->value, "Left Display");
  EXPECT_FALSE(element->isSelected);
}

TEST_F(DisplayChoiceCardTest, HasAClearBorderWhereContrastIsAskedFor) {
  showCard(false);
  appear(false, true);
  EXPECT_TRUE(draws("rgba(0 0 0 0.6) width 0.8\n")) << drawing();
  EXPECT_FALSE(draws("rgba(0 0 0 0.065)")) << drawing();
}

}  // namespace
}  // namespace orvane
