// The settings panel: its pickers, its caption and its close action. tests/scenarios checks its
// texts and links.
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/panels/settings/OrvaneSettingsView.hpp"
#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/ui/host/ViewHost.hpp"
#include "Orvane/windows/OrvaneSettingsWindow.hpp"
#include "desk/canvas/TextShaper.hpp"
#include "tests/panels/PanelFixture.hpp"
#include "tests/support/RecordingCanvas.hpp"
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
  /// The view without a window and without an action for closing, after its entrance.
  std::unique_ptr<ui::ViewHost> hosted(ui::HostPlatform platform) {
    auto host = std::make_unique<ui::ViewHost>(std::move(platform));
    host->setSize(
        {OrvaneSettingsWindow::contentSize.width, OrvaneSettingsWindow::contentSize.height});
    host->setRoot([this](const ui::Environment&) {
      return ui::View(OrvaneSettingsView{.model = &model(), .onClose = {}});
    });
    host->tick(0);
    host->tick(1);
    return host;
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
  int closings = 0;
  ui::HostPlatform platform;
  platform.text = &text;
  platform.services.dismiss = [&dismissals] { ++dismissals; };
  const auto host = hosted(std::move(platform));
  host->keyDown({.key = ui::Key::escape});
  EXPECT_EQ(dismissals, 1);
  host->setRoot([this, &closings](const ui::Environment&) {
    return ui::View(OrvaneSettingsView{.model = &model(), .onClose = [&closings] { ++closings; }});
  });
  host->tick(2);
  host->keyDown({.key = ui::Key::escape});
  EXPECT_EQ(closings, 1);
  EXPECT_EQ(dismissals, 1);
}

/// Text 5 % wider than on the desk, as with the fonts of a Mac, whose symbols are 20 % taller.
class WiderText : public ui::TextMeasurer {
 public:
  ui::TextLayout layout(const std::string& text, const ui::Font& font, double maximumWidth,
                        ui::LineLimit limit) override {
    ui::TextLayout layout = measurer_.layout(text, font, maximumWidth / factor, limit);
    for (ui::TextLine& line : layout.lines) {
      line.width *= factor;
    }
    return layout;
  }

 private:
  static constexpr double factor = 1.05;
  desk::TextShaper measurer_;
};

TEST_F(OrvaneSettingsViewTest, HasRoomForWiderTextAndTallerSymbols) {
  const ui::ImageSource images = server().resources().hostPlatform().images;
  const auto tallerSymbol = [&](const std::string& name, const ui::Font& font) {
    std::optional<ui::Size> size = images.symbolSize(name, font);
    size->height *= 1.2;
    return size;
  };
  WiderText text;
  for (const OrvaneLanguage::Value language : {OrvaneLanguage::english, OrvaneLanguage::chinese}) {
    model().setAppLanguage(language);
    const auto host = hosted({&text, {images.imageSize, tallerSymbol}, nullptr, {}});
    ui::RecordingCanvas canvas;
    host->paint(canvas, {0, 0, host->size().width, host->size().height});
    EXPECT_EQ(canvas.text().find("…"), std::string::npos);
    const std::vector<ui::SemanticsNode> elements = host->semantics().children;
    for (auto first = elements.begin(); first != elements.end(); ++first) {
      for (auto second = first + 1; second != elements.end(); ++second) {
        EXPECT_TRUE(first->frame.intersection(second->frame).isEmpty())
            << first->label << " overlaps " << second->label;
      }
    }
    // 6 points above the close button, and 10 points around the cards and 6 in them.
    const ui::Rect close = elements.at(1).frame;
    EXPECT_GE(close.y, 6);
    EXPECT_GE(elements.at(2).frame.y, close.center().y * 2 + 10 + 6);
    EXPECT_LE(elements.back().frame.bottom(), host->size().height - 10 - 6);
  }
}

TEST_F(OrvaneSettingsViewTest, TheHeaderReportsWhyTheLoginItemFails) {
  const std::string english = "To open at login, move Orvane to Applications";
  const std::string chinese = "要开机自动运行，请先将 Orvane 移到“应用程序”文件夹";
  machine.bundle.isOnReadOnlyVolume = true;
  openSettings();
  EXPECT_FALSE(element(english, settingsPanel)) << "not requested yet";
  model().setLaunchAtLoginEnabled(true);
  machine.runDue();
  EXPECT_TRUE(element(english, settingsPanel));
  EXPECT_EQ(drawn("symbol exclamationmark.triangle.fill ", settingsPanel), 1);
  EXPECT_FALSE(element("Login Items…", settingsPanel)) << "it would not help";
  model().setAppLanguage(OrvaneLanguage::chinese);
  machine.runDue();
  EXPECT_TRUE(element(chinese, settingsPanel));
  // The user can approve the item of an installed copy.
  machine.loginItem.status = appkit::LoginItem::Status::requiresApproval;
  machine.advance(0.9);
  EXPECT_TRUE(element(chinese, settingsPanel));
  machine.advance(0.1);
  EXPECT_FALSE(element(chinese, settingsPanel));
  EXPECT_TRUE(element("登录项…", settingsPanel));
  machine.loginItem.status = appkit::LoginItem::Status::notRegistered;
  model().setLaunchAtLoginEnabled(false);
  machine.runDue();
  EXPECT_FALSE(element(chinese, settingsPanel));
  machine.bundle.isOnReadOnlyVolume = false;
  machine.loginItem.error = "No.";
  model().setLaunchAtLoginEnabled(true);
  machine.runDue();
  EXPECT_TRUE(element("No.", settingsPanel));
  EXPECT_TRUE(element("登录项…", settingsPanel));
}

TEST_F(OrvaneSettingsViewTest, CardsAndControlsHaveTheirPlaces) {
  openSettings();
  const ui::Rect close = frameOf("Close", settingsPanel);
  EXPECT_EQ(close.width, 28);
  EXPECT_EQ(close.height, 28);
  const auto pickers = withRole(ui::Role::popUpButton, settingsPanel);
  EXPECT_EQ(pickers.at(0).frame.width, 160);
  EXPECT_EQ(pickers.at(0).frame.right(), close.right() - 14);
  EXPECT_EQ(pickers.at(1).frame.width, 150);
  // The card begins at 18, its content at 14 from there; the header has the same margin.
  EXPECT_EQ(frameOf("Use Orvane in", settingsPanel).x, 18 + 14);
  EXPECT_EQ(close.right(), 420 - 18);
}

}  // namespace
}  // namespace orvane
