// The main panel shows the state of the model, and its controls call the model; its layout, in
// points from its top left corner. tests/scenarios checks its title bar and its texts in Chinese.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

class ContentViewTest : public PanelFixture {
 protected:
  /// What the main panel shows in a mode.
  struct Shown {
    std::string pinPill;
    std::string preventPill;
    std::vector<std::string> buttons;
    int accentTiles;
    int redButtons;
  };

  /// After the end of all animations.
  void expectShown(const Shown& shown) {
    machine.advance(1);
    EXPECT_EQ(pill("Pin Dock to a Display"), shown.pinPill);
    EXPECT_EQ(pill("Prevent Dock Pop-Up"), shown.preventPill);
    std::vector<std::string> buttons;
    for (const ui::SemanticsNode& button : withRole(ui::Role::button, mainPanel)) {
      buttons.push_back(button.label);
    }
    // After the three of the title bar.
    buttons.erase(buttons.begin(), buttons.begin() + 3);
    EXPECT_EQ(buttons, shown.buttons);
    const bool isHinted = shown.preventPill == "Enabled";
    EXPECT_EQ(element("If the Dock is still visible, manually enable “Automatically hide and show "
                      "the Dock”")
                  .has_value(),
              isHinted);
    EXPECT_EQ(element("Prevents screen edges from bringing up the Dock").has_value(), !isHinted);
    EXPECT_EQ(drawn("0 rgba(0 0.478 1 0.98), 1 rgba(0 0.478 1 0.78)"), shown.accentTiles);
    EXPECT_EQ(drawn("0 rgba(0.557 0.557 0.576 0.98), 1 rgba(0.557 0.557 0.576 0.78)"),
              2 - shown.accentTiles);
    EXPECT_EQ(drawn(", 1 rgba(1 0.231 0.188 1))"), shown.redButtons);
    EXPECT_EQ(drawn("symbol lock.open "), shown.redButtons);
  }

  [[nodiscard]] std::vector<std::string> cards() {
    std::vector<std::string> found;
    for (const ui::SemanticsNode& card : withRole(ui::Role::radioButton, mainPanel)) {
      found.push_back(card.label + "/" + card.value + (card.isSelected ? "/selected" : ""));
    }
    return found;
  }
};

TEST_F(ContentViewTest, ItsButtonsChangeTheModeThatItShows) {
  const Shown none{"Not Pinned", "Off", {"Pin Dock", "Prevent Dock Pop-Up"}, 1, 0};
  openMain();
  expectShown(none);
  ASSERT_TRUE(press("Pin Dock"));
  EXPECT_EQ(model().mode(), OrvaneMode::pinning);
  expectShown({"Pinned", "Off", {"Unpin Dock", "Prevent Dock Pop-Up"}, 1, 1});
  ASSERT_TRUE(press("Unpin Dock"));
  EXPECT_FALSE(model().isGuardRunning());
  expectShown(none);
  ASSERT_TRUE(press("Prevent Dock Pop-Up"));
  EXPECT_EQ(model().mode(), OrvaneMode::preventing);
  expectShown(
      {"Not Pinned", "Enabled", {"Pin Dock", "Allow Dock Pop-Up", "Open Dock Settings"}, 2, 0});
  ASSERT_TRUE(press("Open Dock Settings"));
  EXPECT_EQ(machine.links.opened().front().url,
            "x-apple.systempreferences:com.apple.Desktop-Settings.extension");
  ASSERT_TRUE(press("Allow Dock Pop-Up"));
  EXPECT_FALSE(model().isGuardRunning());
  expectShown(none);
  model().setHidesDockOnAllDisplays(true);
  ASSERT_FALSE(model().isGuardRunning());
  expectShown(none);
}

TEST_F(ContentViewTest, WithoutDisplaysThePickerIsAnEmptyRow) {
  detachAll();
  openMain();
  const std::vector<ui::SemanticsNode> areas = withRole(ui::Role::scrollArea, mainPanel);
  EXPECT_TRUE(cards().empty());
  ASSERT_EQ(areas.size(), 1U);
  EXPECT_EQ(areas.front().frame.height, 154);
  ASSERT_TRUE(element("Pin Dock"));
}

TEST_F(ContentViewTest, ThePinButtonNeedsATargetWhichMayBeDetached) {
  model().refreshDisplays();
  detachAll();
  openMain();
  EXPECT_TRUE(element("Pin Dock")->isEnabled);
  application.terminate();
  machine.userDefaults.remove("selectedDisplayID");
  application.launch();
  openMain();
  ASSERT_FALSE(model().selectedDisplayID().value());
  EXPECT_FALSE(element("Pin Dock")->isEnabled);
  EXPECT_FALSE(press("Pin Dock"));
}

TEST_F(ContentViewTest, ACardForEachDisplayInTheModelsOrderSelectsIt) {
  openMain();
  EXPECT_EQ(cards(), (std::vector<std::string>{"Display/Main Display/selected",
                                               "DELL/Right Display", "LG/Upper Display"}));
  EXPECT_EQ(drawn("image DisplayLaptop "), 1);
  EXPECT_EQ(drawn("image DisplayMonitor "), 2);
  machine.appearance.isDark = true;
  EXPECT_EQ(drawn("image DisplayLaptop-dark "), 1);
  EXPECT_EQ(drawn("image DisplayMonitor-dark "), 2);
  ASSERT_TRUE(press("LG"));
  machine.advance(1);
  EXPECT_EQ(model().selectedDisplayID().value(), "DISPLAY-3");
  EXPECT_EQ(cards(), (std::vector<std::string>{"Display/Main Display", "DELL/Right Display",
                                               "LG/Upper Display/selected"}));
  EXPECT_EQ(drawn("symbol checkmark "), 1);
  attach(4, CGRectMake(3360, 0, 1920, 1080), "HP", false);
  machine.advance(1);
  EXPECT_EQ(cards().size(), 4U);
}

TEST_F(ContentViewTest, ItShowsALostPermissionWithinASecond) {
  openMain();
  ASSERT_TRUE(press("Pin Dock"));
  ASSERT_EQ(pill("Pin Dock to a Display"), "Pinned");
  machine.permission.onChange(nullptr);
  machine.permission.setTrusted(false);
  machine.advance(1);
  EXPECT_NE(pill("Pin Dock to a Display"), "Pinned");
}

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
