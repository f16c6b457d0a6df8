// How the components of the panels move under the pointer.
#include <functional>
#include <string>

#include "Orvane/panels/main/DisplayChoiceCard.hpp"
#include "Orvane/panels/main/TrafficLightButton.hpp"
#include "Orvane/panels/settings/SettingsIconButtonStyle.hpp"
#include "Orvane/panels/settings/SettingsSection.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/panels/ComponentFixture.hpp"
#include "tests/panels/Motion.hpp"

namespace orvane {
namespace {

using ComponentMotionTest = ComponentFixture;

TEST_F(ComponentMotionTest, GrowsUnderThePointerAndShrinksAgainByAnEaseOut) {
  struct Row {
    ui::View view;
    std::string label;
    double growth;
    double seconds;
  };
  DisplayChoiceCard card;
  card.display.name = "Studio";
  const SettingsSection section{.systemImage = "globe",
                                .title = "Title",
                                .tint = ui::Color::red(),
                                .backgroundTint = ui::Color::red(),
                                .content = ui::Text("Content")};
  for (const Row& row : {Row{card, "Studio", 0.012, 0.14},
                         Row{TrafficLightButton::close(true, "Close", [] {}), "Close", 0.1, 0.14},
                         Row{section, "Content", 0.006, 0.16}}) {
    show(row.view, {400, 160});
    const auto width = [&] { return test.element(row.label)->frame.width; };
    const double widthAtRest = width();
    const auto growth = [&] { return (width() / widthAtRest - 1) / row.growth; };
    const motion::Moment moment = motion::easeOut(0.4);
    test.host->pointerMoved({200, 80});
    advance(row.seconds * moment.fraction);
    EXPECT_NEAR(growth(), moment.progress, 1e-6) << row.label;
    advance(row.seconds);
    EXPECT_NEAR(growth(), 1, 1e-9) << row.label;
    test.host->pointerExited();
    advance(row.seconds * moment.fraction);
    EXPECT_NEAR(growth(), 1 - moment.progress, 1e-6) << row.label;
    leave();
  }
}

TEST_F(ComponentMotionTest, TheSettingsCloseButtonShrinksByAnEaseOut) {
  show(ui::Button([] {}, ui::Symbol("xmark").frame(28, 28)).style(SettingsIconButtonStyle{}),
       {28, 28});
  test.host->pointerMoved({14, 14});
  test.host->pointerDown({14, 14});
  const motion::Moment moment = motion::easeOut(0.5);
  advance(0.12 * moment.fraction);
  EXPECT_NEAR(lastNumberAfter("transform scale "), 1 - 0.06 * moment.progress, 0.0006);
  advance(0.12);
  EXPECT_EQ(lastNumberAfter("transform scale "), 0.94);
}

/// A card that selects itself.
class CardSelectionTest : public ComponentFixture {
 protected:
  CardSelectionTest() {
    test.host->setSize({200, 160});
    test.show([this](const ui::Environment&) {
      DisplayChoiceCard card;
      card.display.name = "Studio";
      card.isSelected = isSelected;
      card.action = [this] { isSelected = true; };
      return ui::View(card);
    });
    // Not with the pointer, which would raise the card.
    test.host->press(test.element("Studio")->id);
    advance(0);
  }

  bool isSelected = false;
};

TEST_F(CardSelectionTest, RaisesTheCardAlongASpring) {
  for (const double seconds : {0.06, 0.12, 0.18}) {
    advance(0.06);
    EXPECT_NEAR((test.element("Studio")->frame.width / 176 - 1) / 0.012,
                motion::spring(0.24, 0.82, seconds), 1e-6);
  }
}

TEST_F(CardSelectionTest, FadesTheBadgeInWhileItGrowsFromFourFifths) {
  for (const double seconds : {0.05, 0.1}) {
    advance(0.05);
    // The badge is drawn last.
    const double progress = motion::spring(0.24, 0.82, seconds);
    EXPECT_NEAR(lastNumberAfter("transform scale "), 0.82 + 0.18 * progress, 0.001) << drawing();
    EXPECT_NEAR(lastNumberAfter(" opacity "), progress, 0.001) << drawing();
  }
  rest();
  EXPECT_EQ(lastNumberAfter("transform scale "), 1.012) << "the card's";
  EXPECT_FALSE(draws(" opacity ")) << drawing();
  EXPECT_TRUE(draws("symbol checkmark")) << drawing();
}

}  // namespace
}  // namespace orvane
