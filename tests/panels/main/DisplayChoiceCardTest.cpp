// The card that shows a display. Its look and motion are tested in tests/panels.
#include "Orvane/panels/main/DisplayChoiceCard.hpp"
#include "tests/panels/ComponentFixture.hpp"

namespace orvane {
namespace {

class DisplayChoiceCardTest : public ComponentFixture {
 protected:
  void showCard(const std::string& name) {
    DisplayChoiceCard card;
    card.display.name = name;
    card.fallbackLabel = "Fallback";
    card.action = [this] { ++taps; };
    show(card, {200, 160});
  }

  int taps = 0;
};

TEST_F(DisplayChoiceCardTest, IsPressedAnywhereWithinItsBounds) {
  showCard("Studio");
  test.click({14, 80});
  test.click({186, 148});
  test.click({5, 80});
  EXPECT_EQ(taps, 2);
}

TEST_F(DisplayChoiceCardTest, FallsBackToItsLabelForADisplayWithoutAName) {
  showCard("");
  EXPECT_TRUE(draws("text \"Fallback\" 13/500")) << drawing();
  EXPECT_TRUE(test.element("Fallback"));
}

}  // namespace
}  // namespace orvane
