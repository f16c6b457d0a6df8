// The pages of System Settings that the showroom adds, and its sidebar.
#include <sstream>
#include <utility>

#include "desk/canvas/SymbolLibrary.hpp"
#include "showroom/settings/SettingsPages.hpp"
#include "tests/settings/SystemSettingsFixture.hpp"

namespace orvane::desk {
namespace {

using showroom::desktopAndDockPage;
using showroom::displaysPage;
using showroom::generalPage;

class SettingsPagesTest : public SystemSettingsFixture {
 protected:
  SettingsPagesTest() { showroom::addSettingsPages(settings); }

  /// No text is cut, and each symbol has a drawing.
  void expectDrawnWhole() {
    const auto lines = drawnLines("system");
    for (const std::string& line : lines) {
      EXPECT_EQ(line.find("…"), std::string::npos) << line;
      std::istringstream words(line);
      std::string kind;
      std::string name;
      words >> kind >> name;
      EXPECT_TRUE(kind != "symbol" || SymbolLibrary::contains(name)) << line;
    }
    EXPECT_GT(lines.size(), 20U);
  }
};

TEST_F(SettingsPagesTest, EachLinkOpensItsPage) {
  for (const auto& [link, page] :
       {std::pair("com.apple.Desktop-Settings.extension", desktopAndDockPage),
        std::pair("com.apple.preference.security?Privacy_Accessibility",
                  SystemSettings::accessibilityPage),
        std::pair("com.apple.preference.dock", desktopAndDockPage),
        std::pair("com.apple.preference.security", SystemSettings::privacyPage),
        std::pair("com.apple.LoginItems-Settings.extension", generalPage)}) {
    open((std::string("x-apple.systempreferences:") + link).c_str());
    EXPECT_EQ(settings.state().page, page);
  }
}

TEST_F(SettingsPagesTest, TheApplicationOpensOnThePageItShowedLast) {
  constexpr const char* settingsFile = "/System/Applications/System Settings.app";
  appkit::Workspace::openFile(settingsFile);
  ASSERT_NE(window(), nullptr);
  EXPECT_EQ(settings.state().page, generalPage);
  open();
  server().close(window());
  EXPECT_EQ(window(), nullptr);
  appkit::Workspace::openFile(settingsFile);
  EXPECT_EQ(settings.state().page, SystemSettings::accessibilityPage);
}

TEST_F(SettingsPagesTest, OnlyTheAccessibilityPageAcceptsDrops) {
  open("x-apple.systempreferences:com.apple.preference.dock");
  EXPECT_FALSE(settings.listFrame());
  open();
  EXPECT_TRUE(settings.listFrame());
  clickOn("Add");
  EXPECT_FALSE(settings.listFrame());
}

TEST_F(SettingsPagesTest, TheDockPageMovesAndHidesTheDock) {
  open("x-apple.systempreferences:com.apple.preference.dock");
  EXPECT_TRUE(control("Bottom")->node.isSelected);
  clickOn("Left");
  EXPECT_EQ(machine.dock.edge(), DockEdge::left);
  EXPECT_TRUE(control("Left")->node.isSelected);
  clickOn("Automatically hide and show the Dock");
  EXPECT_TRUE(machine.dock.autoHides());
  EXPECT_EQ(valueOf("Automatically hide and show the Dock"), "1");
}

TEST_F(SettingsPagesTest, TheSidebarAndTheBackButtonLeadThroughThePages) {
  open();
  EXPECT_TRUE(control("Privacy & Security")->node.isSelected);
  clickOn("Back");
  EXPECT_EQ(settings.state().page, SystemSettings::privacyPage);
  clickOn("Accessibility");
  EXPECT_EQ(settings.state().page, SystemSettings::accessibilityPage);
  for (const auto& [label, page] :
       {std::pair("General", generalPage), std::pair("Displays", displaysPage),
        std::pair("Desktop & Dock", desktopAndDockPage)}) {
    clickOn(label);
    EXPECT_EQ(settings.state().page, page);
    EXPECT_TRUE(control(label)->node.isSelected);
  }
}

TEST_F(SettingsPagesTest, EveryPageIsDrawnWholeInBothLanguages) {
  machine.permission.setTrusted(true);
  for (const char* const language : {"en", "zh"}) {
    machine.locale.preferredLanguages = {language};
    for (const SettingsPage& page : settings.pages()) {
      settings.open(page.name);
      expectDrawnWhole();
    }
    settings.open(SystemSettings::accessibilityPage);
    settings.beginChoosing();
    expectDrawnWhole();
    settings.endChoosing(false);
  }
}

}  // namespace
}  // namespace orvane::desk
