// Where everything of the main panel stands, in points from its top left corner.
#include <string>

#include <gtest/gtest.h>

#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

class ContentViewLayoutTest : public PanelFixture {
 protected:
  [[nodiscard]] ui::Rect button(const std::string& label) {
    for (const ui::SemanticsNode& node : withRole(ui::Role::button, mainPanel)) {
      if (node.label == label) {
        return node.frame;
      }
    }
    ADD_FAILURE() << "no button " << label;
    return {};
  }
};

TEST_F(ContentViewLayoutTest, TheTitleBarHasItsControlsAtTheEndsAndItsTitleInTheMiddle) {
  openMain();
  EXPECT_EQ(tree(mainPanel).frame, (ui::Rect{0, 0, 700, 516}));
  EXPECT_EQ(button("Close"), (ui::Rect{28, 26, 14, 14}));
  EXPECT_EQ(button("Minimise"), (ui::Rect{51, 26, 14, 14}));
  EXPECT_EQ(button("Settings"), (ui::Rect{638, 16, 34, 34}));
  const ui::Rect title = frameOf("Orvane");
  EXPECT_NEAR(title.center().y, 33, 0.1);
  // The icon of 22 points, 9 points of air, and the name are centred together.
  EXPECT_NEAR((title.x - 31 + title.right()) / 2, 350, 0.1);
}

TEST_F(ContentViewLayoutTest, TheControlsOfThePanelsHaveTheirSizes) {
  openMain();
  const ui::Rect pin = button("Pin Dock");
  EXPECT_EQ(pin.x, 45);
  EXPECT_EQ(pin.width, 610);
  EXPECT_EQ(pin.height, 38);
  EXPECT_EQ(button("Prevent Dock Pop-Up").height, 34);
  EXPECT_EQ(button("Prevent Dock Pop-Up").width, 610);
  const auto cards = withRole(ui::Role::radioButton, mainPanel);
  ASSERT_EQ(cards.size(), 3U);
  EXPECT_EQ(cards[1].frame.width, 176);
  EXPECT_EQ(cards[1].frame.height, 142);
  // The chosen card is raised by its scale of 1.012, around its middle, and begins where the other
  // rows begin.
  EXPECT_NEAR(cards[0].frame.width, 176 * 1.012, 1e-6);
  EXPECT_NEAR(cards[0].frame.center().x, 45 + 88, 1e-6);
  EXPECT_EQ(withRole(ui::Role::scrollArea, mainPanel).at(0).frame.height, 154);
}

TEST_F(ContentViewLayoutTest, ACardThatIsChosenAndUnderThePointerIsNoLargerThanAChosenOne) {
  openMain();
  hover("Display");
  machine.advance(1);
  const auto cards = withRole(ui::Role::radioButton, mainPanel);
  EXPECT_NEAR(cards.at(0).frame.width, 176 * 1.012, 1e-6);
  hover("DELL");
  machine.advance(1);
  EXPECT_NEAR(withRole(ui::Role::radioButton, mainPanel).at(1).frame.width, 176 * 1.012, 1e-6);
}

TEST_F(ContentViewLayoutTest, ThePanelsAreStackedWithTheirHeights) {
  openMain();
  // Surfaces are drawn once for their fill, once for what lies over it.
  EXPECT_GE(drawn("(25 91 650 269 r12"), 2);
  EXPECT_GE(drawn("(25 370 650 121 r12"), 2);
}

TEST_F(ContentViewLayoutTest, NothingMovesWhenTheHintTakesTheDescriptionsPlace) {
  openMain();
  const ui::Rect toggle = button("Prevent Dock Pop-Up");
  const ui::Rect pin = button("Pin Dock");
  ASSERT_TRUE(press("Prevent Dock Pop-Up"));
  machine.advance(2);
  const ui::Rect allow = button("Allow Dock Pop-Up");
  EXPECT_EQ(allow.y, toggle.y);
  EXPECT_EQ(allow.x, toggle.x);
  EXPECT_EQ(button("Pin Dock"), pin);
  const ui::Rect settings = button("Open Dock Settings");
  EXPECT_EQ(settings, (ui::Rect{465, toggle.y, 190, 34}));
  EXPECT_EQ(allow.width, 410);
}

TEST_F(ContentViewLayoutTest, MoreCardsThanFitCanBeScrolledTo) {
  attach(4, CGRectMake(3360, 0, 1920, 1080), "HP", false);
  openMain();
  const ui::Rect area = withRole(ui::Role::scrollArea, mainPanel).at(0).frame;
  // Cards are cut just inside of the panel's own edges.
  EXPECT_EQ(area.x, 26);
  EXPECT_EQ(area.right(), 674);
  EXPECT_GT(frameOf("HP").right(), area.right());
  const CGPoint corner = server().topLeftOf(*window(mainPanel));
  machine.mouse.moveTo({corner.x + 300, corner.y + 240});
  window(mainPanel)->content->host().scroll({300, 240}, 0, 500);
  machine.advance(1);
  EXPECT_LE(frameOf("HP").right(), area.right());
}

}  // namespace
}  // namespace orvane
