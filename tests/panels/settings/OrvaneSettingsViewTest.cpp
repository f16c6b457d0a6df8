// The settings panel: its pickers, its caption and its close action. tests/scenarios checks its
// texts and links.
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/panels/settings/OrvaneSettingsView.hpp"
#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/ui/host/ViewHost.hpp"
#include "Orvane/windows/OrvaneSettingsWindow.hpp"
#include "tests/panels/PanelFixture.hpp"
#include "tests/support/SyntheticTextMeasurer.hpp"

namespace orvane {
namespace {

class OrvaneSettingsViewTest : public PanelFixture {
 protected:
  [[nodiscard]] std::string valueOf(const std::string& picker) {
    const auto found = element(ui::Role::popUpButton, picker, settingsPanel);
    return found ? found->value : "no picker";
  }
  /// The items of a picker's menu.
  [[nodiscard]] std::vector<std::string> itemsOf(const std::string& picker) {
    std::vector<std::string> titles;
    EXPECT_TRUE(press(picker, settingsPanel));
    if (server().menus.isOpen()) {
      for (const auto& item : server().menus.menu()->items) {
        titles.push_back(item.title);
      }
      server().menus.close();
      machine.runDue();
    }
    return titles;
  }
};

TEST_F(OrvaneSettingsViewTest, TheLanguagePickerIsBoundBothWaysAndEnglishHasOneName) {
  openSettings();
  EXPECT_EQ(valueOf("Language"), "Follow System");
  EXPECT_EQ(itemsOf("Language"), (std::vector<std::string>{"Follow System", "English", "Chinese"}));
  ASSERT_TRUE(pick("Language", "Chinese"));
  EXPECT_EQ(valueOf("语言"), "中文");
  EXPECT_EQ(itemsOf("语言"), (std::vector<std::string>{"跟随系统", "English", "中文"}));
  ASSERT_TRUE(pick("语言", "English"));
  EXPECT_EQ(model().appLanguage().value(), OrvaneLanguage::english);
  EXPECT_EQ(valueOf("Language"), "English");
  model().setAppLanguage(OrvaneLanguage::system);
  EXPECT_EQ(valueOf("Language"), "Follow System");
}

TEST_F(OrvaneSettingsViewTest, TheShortcutPickerIsBoundBothWays) {
  openSettings();
  const std::string label = "Temporary Unlock Shortcut";
  const std::vector<std::string> texts{"⌥ Option", "⌃ Control", "⇧ Shift", "⌘ Command"};
  EXPECT_EQ(itemsOf(label), texts);
  for (std::size_t index = 0; index < texts.size(); ++index) {
    ASSERT_TRUE(pick(label, texts[index]));
    EXPECT_EQ(model().temporaryUnlockModifier().value(), OrvaneModifier::allCases.at(index));
    EXPECT_EQ(valueOf(label), texts[index]);
  }
  model().setTemporaryUnlockModifier(OrvaneModifier::control);
  EXPECT_EQ(valueOf(label), "⌃ Control");
}

TEST_F(OrvaneSettingsViewTest, ClosingDismissesTheViewUnlessItHasAnAction) {
  ui::SyntheticTextMeasurer text;
  int dismissals = 0;
  ui::HostPlatform platform;
  platform.text = &text;
  platform.services.dismiss = [&dismissals] { ++dismissals; };
  ui::ViewHost host(std::move(platform));
  host.setSize({OrvaneSettingsWindow::contentSize.width, OrvaneSettingsWindow::contentSize.height});
  host.setRoot([this](const ui::Environment&) {
    return ui::View(OrvaneSettingsView{.model = &model(), .onClose = {}});
  });
  host.tick(0);
  host.tick(1);
  host.keyDown({.key = ui::Key::escape});
  EXPECT_EQ(dismissals, 1);
  int closings = 0;
  host.setRoot([this, &closings](const ui::Environment&) {
    return ui::View(OrvaneSettingsView{.model = &model(), .onClose = [&closings] { ++closings; }});
  });
  host.tick(2);
  host.keyDown({.key = ui::Key::escape});
  EXPECT_EQ(closings, 1);
  EXPECT_EQ(dismissals, 1);
}

TEST_F(OrvaneSettingsViewTest, TheHeaderReportsAMisplacedApplicationAndAnApproval) {
  const std::string english = "To open at login, move Orvane to Applications";
  const std::string chinese = "要开机自动运行，请先将 Orvane 移到“应用程序”文件夹";
  machine.bundle.isOnReadOnlyVolume = true;
  openSettings();
  EXPECT_FALSE(element(english, settingsPanel)) << "not requested yet";
  model().setLaunchAtLoginEnabled(true);
  machine.runDue();
  EXPECT_TRUE(element(english, settingsPanel));
  EXPECT_FALSE(element("Login Items…", settingsPanel)) << "it would not help";
  model().setAppLanguage(OrvaneLanguage::chinese);
  machine.runDue();
  EXPECT_TRUE(element(chinese, settingsPanel));
  // The user can approve the item of an installed copy.
  machine.loginItem.status = appkit::LoginItem::Status::requiresApproval;
  machine.advance(1);
  EXPECT_FALSE(element(chinese, settingsPanel));
  EXPECT_TRUE(element("登录项…", settingsPanel));
  machine.loginItem.status = appkit::LoginItem::Status::notRegistered;
  model().setLaunchAtLoginEnabled(false);
  machine.runDue();
  EXPECT_FALSE(element(chinese, settingsPanel));
}

TEST_F(OrvaneSettingsViewTest, CardsAndControlsHaveTheirPlaces) {
  openSettings();
  const ui::Rect close = frameOf("Close", settingsPanel);
  EXPECT_EQ(close.width, 28);
  EXPECT_EQ(close.height, 28);
  const auto pickers = withRole(ui::Role::popUpButton, settingsPanel);
  EXPECT_EQ(pickers.at(0).frame.width, 160);
  EXPECT_EQ(pickers.at(1).frame.width, 150);
  // The card begins at 18, its content at 14 from there; the header has the same margin.
  EXPECT_EQ(frameOf("Use Orvane in", settingsPanel).x, 18 + 14);
  EXPECT_EQ(close.right(), 420 - 18);
}

}  // namespace
}  // namespace orvane
