// Every control of every window and menu has an accessibility label, in both languages.
#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/platform/appkit/Window.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "desk/settings/SystemSettings.hpp"
#include "showroom/settings/SettingsPages.hpp"
#include "tests/support/ApplicationFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane::desk {
namespace {

/// The controls whose label is empty or blank, described by role and position.
void collectUnlabelled(const ui::SemanticsNode& node, const std::string& surface,
                       std::vector<std::string>& found) {
  for (const ui::SemanticsNode& control : findControls(node)) {
    if (std::ranges::all_of(control.label, [](char c) { return c == ' '; })) {
      found.push_back(surface + ": a " + ui::roleName(control.role) + " at " +
                      std::to_string(static_cast<int>(control.frame.x)) + ", " +
                      std::to_string(static_cast<int>(control.frame.y)));
    }
  }
}

class SurfaceLabelsTest : public ApplicationFixture,
                          public testing::WithParamInterface<const char*> {
 protected:
  SurfaceLabelsTest() {
    attach(machine, laptop());
    attach(machine, monitorAtTheRight());
    attach(machine, monitorAbove());
  }

  [[nodiscard]] static Surfaces surfaces() { return Surfaces(WindowServer::current()); }

  /// Checks all open surfaces.
  void checkSurfaces() {
    machine.runDue();
    for (const std::string& name : surfaces().names()) {
      visited.insert(name);
      const auto tree = surfaces().tree(name);
      ASSERT_TRUE(tree) << name;
      controls += surfaces().controls(name).size();
      collectUnlabelled(*tree, name, unlabelled);
    }
  }

  /// Presses the control that has one of the labels.
  void press(const std::string& surface, const std::set<std::string>& labels) {
    const bool isDone = std::ranges::any_of(labels, [&](const std::string& label) {
      return ApplicationFixture::press(label, surface);
    });
    EXPECT_TRUE(isDone) << "no control " << *labels.begin() << " on " << surface;
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
    EXPECT_TRUE(WindowServer::current().menus.openStatusMenu(0));
    machine.runDue();
  }

  std::set<std::string> visited;
  std::vector<std::string> unlabelled;
  std::size_t controls = 0;
};

TEST_P(SurfaceLabelsTest, EveryControlHasALabel) {
  machine.userDefaults.set("appLanguage", std::string(GetParam()));
  application.launch();

  openMenu();
  checkSurfaces();
  press("menu", {"Open Window", "打开窗口"});
  checkSurfaces();
  openMenu();
  press("menu", {"Settings", "设置"});
  machine.advance(1);
  checkSurfaces();

  machine.permission.setTrusted(true);
  press("main", {"Pin Dock", "固定 Dock"});
  checkSurfaces();
  press("main", {"Prevent Dock Pop-Up", "防止 Dock 弹出"});
  machine.advance(1);
  checkSurfaces();
  press("main", {"Allow Dock Pop-Up", "允许 Dock 弹出"});

  machine.permission.setTrusted(false);
  press("main", {"Pin Dock", "固定 Dock"});
  checkSurfaces();
  press("alert", {"Open Privacy Settings", "打开隐私设置"});
  machine.advance(3);
  checkSurfaces();
  machine.advance(12);
  checkSurfaces();
  machine.permission.setTrusted(true);
  machine.advance(1.1);
  checkSurfaces();

  checkSystemSettings();

  for (const char* const name : {"menu", "main", "settings", "alert", "guide", "system"}) {
    EXPECT_TRUE(visited.contains(name)) << name << " was not checked";
  }
  EXPECT_GT(controls, 40U);
  EXPECT_EQ(unlabelled, std::vector<std::string>());
}

INSTANTIATE_TEST_SUITE_P(Languages, SurfaceLabelsTest, testing::Values("english", "chinese"));

using SurfaceLabelsCheckTest = SurfaceLabelsTest;

TEST_F(SurfaceLabelsCheckTest, FindsAControlWithoutALabel) {
  machine.process.start();
  const appkit::HostingView view([](const ui::Environment&) -> ui::View {
    return ui::VStack(
        8, {ui::Button([] {}, ui::Text("Labelled")), ui::Button([] {}, ui::Symbol("gearshape")),
            ui::Button([] {}, ui::Symbol("gearshape")).accessibilityLabel("  ")});
  });
  appkit::Window window(appkit::WindowKind::window, CGRectMake(10, 10, 200, 100), 0);
  window.setClassName("OrvaneWindow");
  window.setContentView(view);
  window.orderFrontRegardless();
  checkSurfaces();
  EXPECT_TRUE(visited.contains("main"));
  EXPECT_EQ(controls, 3U);
  ASSERT_EQ(unlabelled.size(), 2U);
  EXPECT_TRUE(unlabelled.front().starts_with("main: a button at ")) << unlabelled.front();
}

}  // namespace
}  // namespace orvane::desk
