// The drawing of the status menu's rows, with the synthetic font.
#include "Orvane/app/CompactMenuSwitch.hpp"
#include "Orvane/app/StatusMenuRow.hpp"
#include "Orvane/app/StatusMenuSectionHeader.hpp"
#include "tests/panels/ComponentFixture.hpp"

namespace orvane {
namespace {

class StatusMenuRowTest : public ComponentFixture {
 protected:
  void show(const ui::View& view, ui::Size size = {208, 30}) { ComponentFixture::show(view, size); }
};

TEST_F(StatusMenuRowTest, HasABadgeATitleAndASwitchAtTheTrailingEnd) {
  show(StatusMenuRow{.title = "Pin", .systemImage = "lock", .isOn = true});
  EXPECT_TRUE(draws("fill ellipse(14 3 24 24) rgba(0 0 0 0.042)\n")) << drawing();
  EXPECT_TRUE(draws("symbol lock 13/500 rgba(0 0 0 0.6) (20 9 13 13)\n")) << drawing();
  EXPECT_TRUE(draws("text \"Pin\" 13/500 rgba(0 0 0 0.85) at 46 18\n")) << drawing();
  EXPECT_TRUE(draws("fill capsule(166 6 34 18) rgba(0 0.478 1 1)\n")) << drawing();
  EXPECT_FALSE(draws("opacity")) << drawing();
  const auto row = test.element("Pin");
  ASSERT_TRUE(row);
  EXPECT_EQ(row->role, ui::Role::toggle);
  EXPECT_EQ(row->value, "1");
  EXPECT_EQ(row->frame, (ui::Rect{0, 0, 208, 30}));
}

TEST_F(StatusMenuRowTest, ShowsABlueBadgeWithAWhiteSymbolWhenSelected) {
  show(StatusMenuRow{.title = "Left", .systemImage = "display", .isSelected = true});
  EXPECT_TRUE(draws("fill ellipse(14 3 24 24) rgba(0 0.478 1 1)\n")) << drawing();
  EXPECT_TRUE(draws("symbol display 13/500 rgba(1 1 1 1)")) << drawing();
  EXPECT_FALSE(draws("capsule")) << drawing();
  EXPECT_TRUE(test.element("Left")->isSelected);
  EXPECT_EQ(test.element("Left")->role, ui::Role::button);
}

TEST_F(StatusMenuRowTest, IsDimmedWhileDisabledAndIgnoresClicks) {
  int runs = 0;
  show(StatusMenuRow{
      .title = "Pin", .systemImage = "lock", .isEnabled = false, .action = [&] { ++runs; }});
  EXPECT_TRUE(draws("symbol lock 13/500 rgba(0 0 0 0.27)")) << drawing();
  EXPECT_TRUE(draws("text \"Pin\" 13/500 rgba(0 0 0 0.27)")) << drawing();
  test.click({100, 15});
  EXPECT_EQ(runs, 0);
  EXPECT_FALSE(test.element("Pin")->isEnabled);
}

TEST_F(StatusMenuRowTest, RunsItsActionWhereverItIsClicked) {
  int runs = 0;
  show(StatusMenuRow{
      .title = "Pin", .systemImage = "lock", .isOn = false, .action = [&] { ++runs; }});
  for (const double x : {1.0, 26.0, 100.0, 183.0, 207.0}) {
    test.click({x, 29});
  }
  EXPECT_EQ(runs, 5);
}

TEST_F(StatusMenuRowTest, ShowsAFaintHighlightUnderThePointerUnlessItHasASwitch) {
  show(StatusMenuRow{.title = "Quit", .systemImage = "power"});
  EXPECT_TRUE(draws("fill rounded(3 2 202 26 r6 continuous) rgba(0 0 0 0)\n")) << drawing();
  test.host->pointerMoved({100, 15});
  advance(0);
  // The primary colour is black at 0.85, and of that 0.08.
  EXPECT_TRUE(draws("fill rounded(3 2 202 26 r6 continuous) rgba(0 0 0 0.068)\n")) << drawing();
  test.host->pointerExited();
  advance(0);
  EXPECT_TRUE(draws("fill rounded(3 2 202 26 r6 continuous) rgba(0 0 0 0)\n")) << drawing();
  show(StatusMenuRow{.title = "Pin", .systemImage = "lock", .isOn = false});
  test.host->pointerMoved({100, 15});
  advance(0);
  EXPECT_TRUE(draws("fill rounded(3 2 202 26 r6 continuous) rgba(0 0 0 0)\n")) << drawing();
}

TEST_F(StatusMenuRowTest, ShowsARoundedRingWithTheFocus) {
  show(StatusMenuRow{.title = "Quit", .systemImage = "power"});
  test.press(ui::Key::tab);
  EXPECT_TRUE(draws("stroke rounded(-2 -2 212 34 r8 continuous)")) << drawing();
}

TEST_F(StatusMenuRowTest, TightensALongTitleBeforeItTruncatesIt) {
  // From 46 to 163 there are 117 points, for 18 characters of 6.5 points.
  show(StatusMenuRow{.title = "123456789012345678", .systemImage = "lock", .isOn = false});
  EXPECT_TRUE(draws("text \"123456789012345678\" 13/500")) << drawing();
  EXPECT_FALSE(test.host->tooltipAt({150, 15}));
  // One more character: 6.5 points to be gained from 19.
  show(StatusMenuRow{.title = "1234567890123456789", .systemImage = "lock", .isOn = false});
  EXPECT_TRUE(draws("text \"1234567890123456789\" 13/500/-0.344 ")) << drawing();
  EXPECT_FALSE(test.host->tooltipAt({150, 15}));
  show(StatusMenuRow{.title = "A display (Main)5678", .systemImage = "lock", .isOn = false});
  EXPECT_TRUE(draws("text \"A displ\u2026(Main)5678\" 13/500 ")) << drawing();
  for (const double x : {30.0, 80.0, 190.0}) {
    ASSERT_TRUE(test.host->tooltipAt({x, 15}));
    EXPECT_EQ(test.host->tooltipAt({x, 15})->text, "A display (Main)5678");
  }
}

TEST_F(StatusMenuRowTest, ASwitchIsACapsuleWithAKnobAtOneEnd) {
  show(CompactMenuSwitch{true}, {34, 18});
  EXPECT_TRUE(draws("fill capsule(0 0 34 18) rgba(0 0.478 1 1)\n")) << drawing();
  // Half a point is no pixel, so the knob of 1.5 points' distance is painted at 2.
  EXPECT_TRUE(draws("fill ellipse(18 2 15 15) rgba(1 1 1 1)\n")) << drawing();
  EXPECT_TRUE(draws("shadow ellipse(18 2 15 15) rgba(0 0 0 0.14)")) << drawing();
  show(CompactMenuSwitch{false}, {34, 18});
  EXPECT_TRUE(draws("fill capsule(0 0 34 18) rgba(0 0 0 0.057)\n")) << drawing();
  EXPECT_TRUE(draws("fill ellipse(2 2 15 15) rgba(1 1 1 1)\n")) << drawing();
  EXPECT_TRUE(test.host->semantics().children.empty());
}

TEST_F(StatusMenuRowTest, ASwitchThatIsOffHasAnOutlineThatFollowsIncreasedContrast) {
  show(CompactMenuSwitch{false}, {34, 18});
  EXPECT_TRUE(draws("rgba(0 0 0 0.425) width 1\n")) << drawing();
  EXPECT_FALSE(draws("rgba(0 0 0 0.6)")) << drawing();
  appear(false, true);
  EXPECT_TRUE(draws("rgba(0 0 0 0.6)")) << drawing();
}

TEST_F(StatusMenuRowTest, AHeaderIsASmallHeadingAtTheTopLeft) {
  show(StatusMenuSectionHeader{"Displays"}, {208, 26});
  EXPECT_TRUE(draws("text \"Displays\" 12/600 rgba(0 0 0 0.6) at 14 16\n")) << drawing();
  EXPECT_EQ(test.element("Displays")->role, ui::Role::heading);
}

}  // namespace
}  // namespace orvane
