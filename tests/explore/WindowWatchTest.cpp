// Each test describes a step that leaves a window in the wrong place, and a step that does not.
#include <string>

#include "desk/explore/WindowWatch.hpp"
#include "tests/explore/StepFixture.hpp"

namespace orvane::desk::explore {
namespace {

class WindowWatchTest : public StepFixture {
 protected:
  [[nodiscard]] std::string violationOf(const std::string& text) {
    const auto violation = watch.check(step(text));
    return violation ? violation->text : "";
  }

  WindowWatch watch;
};

TEST_F(WindowWatchTest, AnOpenPanelStaysInItsPlace) {
  const std::string press = "press \"Open Window\" in menu";
  before.frames["main"] = after.frames["main"] = CGRectMake(100, 100, 700, 516);
  EXPECT_EQ(violationOf(press), "");
  after.frames["main"].origin.x = 200;
  EXPECT_EQ(violationOf(press), "the panel was moved although it was shown already");
  before.frames.clear();
  EXPECT_EQ(violationOf(press), "") << "it has opened";
}

TEST_F(WindowWatchTest, TheSettingsOpenInTheMiddleOfThePanel) {
  after.frames["main"] = CGRectMake(100, 100, 700, 516);
  after.frames["settings"] = CGRectMake(0, 0, 400, 300);
  EXPECT_EQ(violationOf("press \"Settings\" in main"),
            "the settings are not in the middle of the panel");
}

TEST_F(WindowWatchTest, TheGuideOpensOnTheDisplayOfThePointer) {
  for (const double x : {0.0, 1000.0}) {
    Display display;
    display.number = static_cast<std::uint32_t>(x) + 1;
    display.frame = CGRectMake(x, 0, 1000, 800);
    ASSERT_EQ(machine().displays.attach(display), std::nullopt);
  }
  machine().mouse.moveTo({1500, 400});
  after.isGuideOpen = true;
  after.frames["guide"] = CGRectMake(1600, 100, 300, 500);
  EXPECT_EQ(violationOf("advance 2"), "");
  after.frames["guide"].origin.x = 600;
  EXPECT_EQ(violationOf("advance 2"), "it opened on another display than that of the pointer");
}

TEST_F(WindowWatchTest, TheCardOfTheChosenDisplayIsScrolledIntoSight) {
  ui::SemanticsNode area;
  area.role = ui::Role::scrollArea;
  area.frame = {0, 0, 600, 150};
  ui::SemanticsNode card;
  card.role = ui::Role::radioButton;
  card.isSelected = true;
  card.frame = {500, 0, 176, 142};
  area.children.push_back(card);
  before.trees["main"] = after.trees["main"] = area;
  machine().advance(1);
  before.isMainOpen = true;
  EXPECT_EQ(violationOf("advance 1"), "") << "it was not chosen just now";
  after.stored.selected = "RIGHT";
  EXPECT_EQ(violationOf("advance 1"), "the card of the chosen display is out of sight");
  EXPECT_EQ(violationOf("scroll 100 0"), "");
  before.stored.selected = "RIGHT";
  EXPECT_EQ(violationOf("advance 1"), "") << "the user has scrolled";
}

}  // namespace
}  // namespace orvane::desk::explore
