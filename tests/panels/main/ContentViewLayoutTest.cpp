// The layout of the main panel, in points from its top left corner.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

class ContentViewLayoutTest : public PanelFixture {
 protected:
  [[nodiscard]] ui::Rect button(const std::string& label) {
    const auto found = element(ui::Role::button, label);
    EXPECT_TRUE(found) << "no button " << label;
    return found ? found->frame : ui::Rect{};
  }
};

TEST_F(ContentViewLayoutTest, TheTitleBarHasItsControlsAtTheEndsAndItsTitleInTheMiddle) {
  openMain();
  EXPECT_EQ(button("Close"), (ui::Rect{28, 26, 14, 14}));
  EXPECT_EQ(button("Minimise"), (ui::Rect{51, 26, 14, 14}));
  EXPECT_EQ(button("Settings"), (ui::Rect{638, 16, 34, 34}));
  const ui::Rect title = frameOf("Orvane");
  EXPECT_NEAR(title.center().y, 33, 0.1);
  // The icon of 22 points, 9 points of air, and the name are centred together.
  EXPECT_NEAR((title.x - 31 + title.right()) / 2, 350, 0.1);
}

TEST_F(ContentViewLayoutTest, PanelsAndTheirControlsHaveTheirFrames) {
  openMain();
  // 10.5 points above the icons, which are on whole pixels, and below the buttons, 10 between rows.
  EXPECT_EQ(drawn("stroke rounded(25 91 650 269 r12"), 1);
  EXPECT_EQ(drawn("stroke rounded(25 370 650 121 r12"), 1);
  EXPECT_EQ(drawn("shadow rounded(45 102 48 48 r11"), 1);
  EXPECT_EQ(drawn("shadow rounded(45 381 48 48 r11"), 1);
  EXPECT_EQ(button("Pin Dock"), (ui::Rect{45, 311.5, 610, 38}));
  EXPECT_EQ(button("Prevent Dock Pop-Up"), (ui::Rect{45, 446.5, 610, 34}));
  EXPECT_EQ(element(ui::Role::heading, "Pin Dock to a Display")->frame.origin(),
            (ui::Point{107, 105.5}));
  EXPECT_EQ(frameOf("Dock stays on the selected display").origin(), (ui::Point{107, 129.5}));
  EXPECT_EQ(withRole(ui::Role::scrollArea, mainPanel).at(0).frame, (ui::Rect{26, 153.5, 648, 154}));
  EXPECT_EQ(frameOf("DELL"), (ui::Rect{235, 159.5, 176, 142}));
  // The selected card is scaled around its centre.
  EXPECT_NEAR(frameOf("Display").width, 176 * 1.012, 1e-6);
  EXPECT_NEAR(frameOf("Display").center().x, 45 + 88, 1e-6);

  ASSERT_TRUE(press("Prevent Dock Pop-Up"));
  machine.advance(2);
  EXPECT_EQ(button("Pin Dock"), (ui::Rect{45, 311.5, 610, 38}));
  EXPECT_EQ(button("Allow Dock Pop-Up"), (ui::Rect{45, 446.5, 410, 34}));
  EXPECT_EQ(button("Open Dock Settings"), (ui::Rect{465, 446.5, 190, 34}));
}

TEST_F(ContentViewLayoutTest, BothLightsShowTheirSymbolsWhileThePointerIsInTheirCluster) {
  openMain();
  const CGPoint corner = server().topLeftOf(*window(mainPanel));
  const auto symbolsWithPointerAt = [&](double x, double y) {
    machine.mouse.moveTo({corner.x + x, corner.y + y});
    machine.advance(1);
    return drawn("symbol xmark ") + drawn("symbol minus ");
  };
  EXPECT_EQ(symbolsWithPointerAt(350, 33), 0);
  for (const auto& [x, y] : std::vector<std::pair<double, double>>{
           {35, 33}, {58, 33}, {46, 33}, {30, 6}, {149, 33}, {100, 65}}) {
    EXPECT_EQ(symbolsWithPointerAt(x, y), 2) << x << " " << y;
  }
  EXPECT_EQ(symbolsWithPointerAt(151, 33), 0);
  EXPECT_EQ(symbolsWithPointerAt(100, 67), 0);
}

}  // namespace
}  // namespace orvane
