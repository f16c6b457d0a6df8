// Every control of every window and menu has an accessibility label, in both languages.
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "desk/settings/SystemSettings.hpp"
#include "showroom/settings/SettingsPages.hpp"
#include "tests/support/ApplicationFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane::desk {
namespace {

class SurfaceLabelsTest : public ApplicationFixture,
                          public testing::WithParamInterface<const char*> {
 protected:
  SurfaceLabelsTest() {
    attach(machine, laptop());
    attach(machine, monitorAtTheRight());
    attach(machine, monitorAbove());
    store("appLanguage", GetParam());
    application.launch();
  }

  /// Checks the controls of all open surfaces.
  void checkSurfaces() {
    machine.runDue();
    for (const std::string& name : Surfaces(server()).names()) {
      visited.insert(name);
      for (const ui::SemanticsNode& control : findControls(tree(name))) {
        ++controls;
        EXPECT_NE(control.label.find_first_not_of(' '), std::string::npos)
            << name << ": a " << ui::roleName(control.role) << " at " << control.frame.x << ", "
            << control.frame.y;
      }
    }
  }

  /// Presses the control with the label in the test's language.
  void press(const std::string& surface, const char* english, const char* chinese) {
    const std::string label = model().localized(english, chinese);
    EXPECT_TRUE(ApplicationFixture::press(label, surface)) << label << " on " << surface;
  }

  void checkSystemSettings() {
    SystemSettings& settings = application.systemSettings();
    showroom::addSettingsPages(settings);
    for (const SettingsPage& page : settings.pages()) {
      settings.open(page.name);
      checkSurfaces();
    }
    settings.open(SystemSettings::accessibilityPage);
    settings.beginChoosing();
    checkSurfaces();
  }

  void openMenu() {
    EXPECT_TRUE(server().menus.openStatusMenu(0));
    machine.runDue();
  }

  std::set<std::string> visited;
  int controls = 0;
};

TEST_P(SurfaceLabelsTest, EveryControlHasALabel) {
  openMenu();
  checkSurfaces();
  press("menu", "Open Window", "打开窗口");
  checkSurfaces();
  openMenu();
  press("menu", "Settings", "设置");
  machine.advance(1);
  checkSurfaces();

  machine.permission.setTrusted(true);
  press("main", "Pin Dock", "固定 Dock");
  checkSurfaces();
  press("main", "Prevent Dock Pop-Up", "防止 Dock 弹出");
  machine.advance(1);
  checkSurfaces();
  press("main", "Allow Dock Pop-Up", "允许 Dock 弹出");

  machine.permission.setTrusted(false);
  press("main", "Pin Dock", "固定 Dock");
  checkSurfaces();
  press("alert", "Open Privacy Settings", "打开隐私设置");
  machine.advance(3);
  checkSurfaces();
  machine.advance(12);
  checkSurfaces();
  machine.permission.setTrusted(true);
  machine.advance(1.1);
  checkSurfaces();

  checkSystemSettings();

  EXPECT_EQ(visited,
            (std::set<std::string>{"alert", "guide", "main", "menu", "settings", "system"}));
  EXPECT_GT(controls, 40);
}

INSTANTIATE_TEST_SUITE_P(Languages, SurfaceLabelsTest, testing::Values("english", "chinese"));

}  // namespace
}  // namespace orvane::desk
