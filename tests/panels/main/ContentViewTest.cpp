// The main panel shows the state of the model, and its controls call the model.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

const std::string pinTitle = "Pin Dock to a Display";
const std::string preventTitle = "Prevent Dock Pop-Up";
const std::string hint =
    "If the Dock is still visible, manually enable “Automatically hide and show the Dock”";

class ContentViewTest : public PanelFixture {
 protected:
  [[nodiscard]] bool hasButton(const std::string& label) {
    return element(ui::Role::button, label).has_value();
  }
  [[nodiscard]] std::vector<std::string> cards() {
    std::vector<std::string> found;
    for (const ui::SemanticsNode& card : withRole(ui::Role::radioButton, mainPanel)) {
      found.push_back(card.label + "/" + card.value + (card.isSelected ? "/selected" : ""));
    }
    return found;
  }
};

TEST_F(ContentViewTest, WithoutAModeNothingIsPinnedOrPrevented) {
  openMain();
  EXPECT_EQ(pill(pinTitle), "Not Pinned");
  EXPECT_EQ(pill(preventTitle), "Off");
  EXPECT_TRUE(element("Dock stays on the selected display"));
  EXPECT_TRUE(element("Prevents screen edges from bringing up the Dock"));
  EXPECT_TRUE(hasButton("Pin Dock"));
  EXPECT_TRUE(hasButton("Prevent Dock Pop-Up"));
  EXPECT_FALSE(hasButton("Open Dock Settings"));
}

TEST_F(ContentViewTest, ThePinButtonPinsAndUnpins) {
  openMain();
  ASSERT_TRUE(press("Pin Dock"));
  machine.advance(1);
  EXPECT_TRUE(model().isGuardRunning());
  EXPECT_FALSE(model().hidesDockOnAllDisplays().value());
  EXPECT_EQ(pill(pinTitle), "Pinned");
  EXPECT_EQ(pill(preventTitle), "Off");
  EXPECT_FALSE(hasButton("Pin Dock"));
  EXPECT_EQ(drawn("symbol lock.open "), 1);
  ASSERT_TRUE(press("Unpin Dock"));
  machine.advance(1);
  EXPECT_FALSE(model().isGuardRunning());
  EXPECT_EQ(pill(pinTitle), "Not Pinned");
}

TEST_F(ContentViewTest, ThePreventButtonPreventsAndAllows) {
  openMain();
  ASSERT_TRUE(press("Prevent Dock Pop-Up"));
  machine.advance(1);
  EXPECT_TRUE(model().isGuardRunning());
  EXPECT_TRUE(model().hidesDockOnAllDisplays().value());
  EXPECT_EQ(pill(pinTitle), "Not Pinned");
  EXPECT_EQ(pill(preventTitle), "Enabled");
  EXPECT_TRUE(element(hint));
  EXPECT_FALSE(element("Prevents screen edges from bringing up the Dock"));
  ASSERT_TRUE(press("Open Dock Settings"));
  ASSERT_EQ(machine.links.opened().size(), 1U);
  EXPECT_EQ(machine.links.opened().front().url,
            "x-apple.systempreferences:com.apple.Desktop-Settings.extension");
  ASSERT_TRUE(press("Allow Dock Pop-Up"));
  machine.advance(1);
  EXPECT_FALSE(model().isGuardRunning());
  EXPECT_EQ(pill(preventTitle), "Off");
  EXPECT_FALSE(hasButton("Open Dock Settings"));
}

TEST_F(ContentViewTest, IconAndPinButtonHaveTheColourOfTheMode) {
  const std::string accentTile = "0 rgba(0 0.478 1 0.98), 1 rgba(0 0.478 1 0.78)";
  const std::string grayTile = "0 rgba(0.557 0.557 0.576 0.98), 1 rgba(0.557 0.557 0.576 0.78)";
  const std::string blueButton = ", 1 rgba(0 0.478 1 1))";
  const std::string redButton = ", 1 rgba(1 0.231 0.188 1))";
  const auto expectDrawn = [](const std::vector<std::pair<std::string, int>>& counts) {
    for (const auto& [part, count] : counts) {
      EXPECT_EQ(drawn(part), count) << part;
    }
  };
  openMain();
  expectDrawn({{accentTile, 1}, {grayTile, 1}, {blueButton, 1}, {redButton, 0}});
  ASSERT_TRUE(press("Pin Dock"));
  machine.advance(1);
  expectDrawn({{accentTile, 1}, {grayTile, 1}, {blueButton, 0}, {redButton, 1}});
  ASSERT_TRUE(press("Prevent Dock Pop-Up"));
  machine.advance(1);
  expectDrawn({{accentTile, 2}, {grayTile, 0}, {blueButton, 1}, {redButton, 0}});
}

TEST_F(ContentViewTest, AStoredPreventModeIsNotShownWhileTheGuardDoesNotRun) {
  model().setHidesDockOnAllDisplays(true);
  ASSERT_FALSE(model().isGuardRunning());
  openMain();
  EXPECT_EQ(pill(preventTitle), "Off");
  EXPECT_EQ(pill(pinTitle), "Not Pinned");
  EXPECT_TRUE(element("Prevents screen edges from bringing up the Dock"));
  EXPECT_FALSE(element(hint));
  EXPECT_TRUE(hasButton("Prevent Dock Pop-Up"));
  EXPECT_FALSE(hasButton("Open Dock Settings"));
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

TEST_F(ContentViewTest, ThePinButtonIsEnabledByAStoredTargetThatIsNotAttached) {
  model().refreshDisplays();
  ASSERT_TRUE(model().selectedDisplayID().value());
  detachAll();
  openMain();
  EXPECT_TRUE(model().displays().value().empty());
  EXPECT_TRUE(element("Pin Dock")->isEnabled);
}

TEST_F(ContentViewTest, ThePinButtonIsDisabledWithoutATarget) {
  detachAll();
  application.terminate();
  machine.userDefaults.remove("selectedDisplayID");
  application.launch();
  openMain();
  ASSERT_FALSE(model().selectedDisplayID().value());
  EXPECT_FALSE(element("Pin Dock")->isEnabled);
  EXPECT_FALSE(press("Pin Dock"));
}

TEST_F(ContentViewTest, ThereIsACardForEachDisplayInTheModelsOrder) {
  openMain();
  EXPECT_EQ(cards(), (std::vector<std::string>{"Display/Main Display/selected",
                                               "DELL/Right Display", "LG/Upper Display"}));
  EXPECT_EQ(drawn("image DisplayLaptop "), 1);
  EXPECT_EQ(drawn("image DisplayMonitor "), 2);
  EXPECT_EQ(drawn("symbol checkmark "), 1);
  attach(4, CGRectMake(3360, 0, 1920, 1080), "HP", false);
  machine.advance(1);
  EXPECT_EQ(cards().size(), 4U);
}

TEST_F(ContentViewTest, APressOnACardSelectsItsDisplay) {
  openMain();
  ASSERT_TRUE(press("LG"));
  machine.advance(1);
  EXPECT_EQ(model().selectedDisplayID().value(), "DISPLAY-3");
  EXPECT_EQ(cards(), (std::vector<std::string>{"Display/Main Display", "DELL/Right Display",
                                               "LG/Upper Display/selected"}));
  EXPECT_EQ(drawn("symbol checkmark "), 1);
}

TEST_F(ContentViewTest, ThePanelsTimerEndsWithThePanel) {
  const std::size_t timers = machine.runLoop.timerCount();
  openMain();
  EXPECT_EQ(machine.runLoop.timerCount(), timers + 1);
  ASSERT_TRUE(press("Close"));
  EXPECT_EQ(machine.runLoop.timerCount(), timers);
}

TEST_F(ContentViewTest, TheTitleBarClosesMinimisesAndOpensTheSettings) {
  openMain();
  ASSERT_TRUE(press("Settings"));
  EXPECT_TRUE(isOpen(settingsPanel));
  EXPECT_EQ(window(settingsPanel)->parent.lock(), window(mainPanel));
  ASSERT_TRUE(press("Minimise"));
  EXPECT_FALSE(isOpen(mainPanel));
  application.reopen();
  EXPECT_TRUE(isOpen(mainPanel));
  ASSERT_TRUE(press("Close"));
  EXPECT_FALSE(isOpen(mainPanel));
  EXPECT_FALSE(isOpen(settingsPanel));
  EXPECT_TRUE(application.isRunning());
}

TEST_F(ContentViewTest, TheSettingsButtonHasATooltip) {
  openMain();
  hover("Settings");
  machine.advance(1.5);
  ASSERT_TRUE(server().tooltips.shown());
  EXPECT_EQ(server().tooltips.shown()->text, "Settings");
}

TEST_F(ContentViewTest, AChangedLanguageChangesEveryText) {
  openMain();
  ASSERT_TRUE(press("Prevent Dock Pop-Up"));
  machine.advance(1);
  model().setAppLanguage(OrvaneLanguage::chinese);
  EXPECT_EQ(pill("固定 Dock 到指定显示器"), "未固定");
  EXPECT_EQ(pill("防止 Dock 弹出"), "已启用");
  for (const char* text :
       {"关闭", "最小化", "设置", "Dock 固定在选中的显示器",
        "如果你还看得到 Dock 栏，需要手动开启“自动隐藏和显示程序坞”", "固定 Dock", "允许 Dock 弹出",
        "打开 Dock 设置", "Orvane", "内建显示器"}) {
    EXPECT_TRUE(element(text)) << text;
  }
  EXPECT_EQ(cards(), (std::vector<std::string>{"内建显示器/主显示器/selected", "DELL/右侧显示器",
                                               "LG/上方显示器"}));
  ASSERT_TRUE(press("允许 Dock 弹出"));
  EXPECT_TRUE(element("阻止屏幕边缘触发 Dock 弹出"));
  EXPECT_EQ(pill("防止 Dock 弹出"), "未启用");
  ASSERT_TRUE(press("固定 Dock"));
  EXPECT_EQ(pill("固定 Dock 到指定显示器"), "已固定");
  EXPECT_TRUE(element("解除固定 Dock"));
  model().setAppLanguage(OrvaneLanguage::english);
  EXPECT_EQ(pill(pinTitle), "Pinned");
  EXPECT_FALSE(element("解除固定 Dock"));
}

TEST_F(ContentViewTest, AnotherAppearanceChangesTheImages) {
  openMain();
  machine.appearance.isDark = true;
  EXPECT_EQ(drawn("image DisplayLaptop-dark "), 1);
  EXPECT_EQ(drawn("image DisplayMonitor-dark "), 2);
}

}  // namespace
}  // namespace orvane
