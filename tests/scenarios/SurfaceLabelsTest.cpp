// Every control of every surface says what it is: a walk through the whole product, window by
// window, in both languages.
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
#include "showroom/hardware/HardwarePanelHost.hpp"
#include "showroom/settings/SettingsPages.hpp"
#include "tests/support/ApplicationFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane::desk {
namespace {

/// The controls below whose label is empty or blank, described by role and place.
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

  /// Looks at everything that can be operated now.
  void look() {
    machine.runDue();
    for (const std::string& name : surfaces().names()) {
      visited.insert(name);
      const auto tree = surfaces().tree(name);
      ASSERT_TRUE(tree) << name;
      controls += surfaces().controls(name).size();
      collectUnlabelled(*tree, name, unlabelled);
    }
  }

  /// Presses the control there whose label is one of these.
  void press(const std::string& surface, const std::set<std::string>& labels) {
    const bool isDone = std::ranges::any_of(labels, [&](const std::string& label) {
      return ApplicationFixture::press(label, surface);
    });
    EXPECT_TRUE(isDone) << "no control " << *labels.begin() << " on " << surface;
  }

  void lookAtSystemSettings() {
    SystemSettings& settings = application.systemSettings();
    showroom::addSettingsPages(settings);
    for (const SettingsPage& page : settings.pages()) {
      settings.open(page.name);
      look();
    }
    settings.open(SystemSettings::accessibilityPage);
    settings.beginChoosing();
    look();
  }

  void openMenu() {
    EXPECT_TRUE(WindowServer::current().menus.openStatusMenu(0));
    machine.runDue();
  }

  std::set<std::string> visited;
  std::vector<std::string> unlabelled;
  std::size_t controls = 0;
};

TEST_P(SurfaceLabelsTest, NoControlOfTheProductIsWithoutALabel) {
  machine.userDefaults.set("appLanguage", std::string(GetParam()));
  application.launch();

  openMenu();
  look();
  press("menu", {"Open Window", "打开窗口"});
  look();
  openMenu();
  press("menu", {"Settings", "设置"});
  machine.advance(1);
  look();

  // Both modes change what the main panel shows.
  machine.permission.setTrusted(true);
  press("main", {"Pin Dock", "固定 Dock"});
  look();
  press("main", {"Prevent Dock Pop-Up", "防止 Dock 弹出"});
  machine.advance(1);
  look();
  press("main", {"Allow Dock Pop-Up", "允许 Dock 弹出"});

  machine.permission.setTrusted(false);
  press("main", {"Pin Dock", "固定 Dock"});
  look();
  press("alert", {"Open Privacy Settings", "打开隐私设置"});
  machine.advance(3);
  look();
  machine.advance(12);
  look();
  machine.permission.setTrusted(true);
  machine.advance(1.1);
  look();

  lookAtSystemSettings();

  for (const char* const name : {"menu", "main", "settings", "alert", "guide", "system"}) {
    EXPECT_TRUE(visited.contains(name)) << name << " was never seen";
  }
  EXPECT_GT(controls, 40U);
  EXPECT_EQ(unlabelled, std::vector<std::string>());
}

TEST_P(SurfaceLabelsTest, NoControlOfTheHardwarePanelIsWithoutALabel) {
  machine.userDefaults.set("appLanguage", std::string(GetParam()));
  application.launch();
  showroom::Hardware hardware(machine, application);
  showroom::HardwarePanelHost panel(hardware);
  panel.setSize({showroom::HardwarePanel::width, 900});
  panel.show(showroom::HardwareContent::of(hardware, 0));
  const ui::SemanticsNode tree = panel.host().semantics();
  collectUnlabelled(tree, "hardware", unlabelled);
  EXPECT_GT(findControls(tree).size(), 15U);
  EXPECT_EQ(unlabelled, std::vector<std::string>());
}

INSTANTIATE_TEST_SUITE_P(Languages, SurfaceLabelsTest, testing::Values("english", "chinese"));

using SurfaceLabelsProof = SurfaceLabelsTest;

TEST_F(SurfaceLabelsProof, AControlWithoutALabelIsFound) {
  machine.process.start();
  const appkit::HostingView view([](const ui::Environment&) -> ui::View {
    return ui::VStack({ui::Button([] {}, ui::Text("Labelled")),
                       ui::Button([] {}, ui::Symbol("gearshape")),
                       ui::Button([] {}, ui::Symbol("gearshape")).accessibilityLabel("  ")});
  });
  appkit::Window window(appkit::WindowKind::window, CGRectMake(10, 10, 200, 100), 0);
  window.setClassName("OrvaneWindow");
  window.setContentView(view);
  window.orderFrontRegardless();
  look();
  EXPECT_TRUE(visited.contains("main"));
  EXPECT_EQ(controls, 3U);
  ASSERT_EQ(unlabelled.size(), 2U);
  EXPECT_TRUE(unlabelled.front().starts_with("main: a button at ")) << unlabelled.front();
}

}  // namespace
}  // namespace orvane::desk
