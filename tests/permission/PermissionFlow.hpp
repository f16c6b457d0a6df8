// PermissionFlow gives each test two displays, an application without the permission, and functions
// that operate its windows.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Orvane/permission/OrvaneAccessibilityPermission.hpp"
#include "Orvane/permission/OrvanePermissionAlert.hpp"
#include "Orvane/permission/OrvanePermissionGuideWindowController.hpp"
#include "desk/settings/SystemSettings.hpp"
#include "tests/support/HandFixture.hpp"
#include "tests/support/SemanticsText.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {

/// The laptop is display 1, with the Dock, the monitor at its right display 2.
class PermissionFlow : public desk::HandFixture {
 protected:
  PermissionFlow() {
    desk::attach(machine, desk::laptop());
    desk::attach(machine, desk::monitorAtTheRight());
    machine.mouse.moveTo({20, 200});
    OrvaneAccessibilityPermission::setPrompt(OrvanePermissionAlert::show);
  }

  OrvanePermissionGuideWindowController& guide() {
    return OrvanePermissionGuideWindowController::shared();
  }
  [[nodiscard]] bool isGuideVisible() const {
    return OrvanePermissionGuideWindowController::snapshot().isVisible;
  }
  [[nodiscard]] bool isPolling() const {
    return OrvanePermissionGuideWindowController::snapshot().isPolling;
  }
  [[nodiscard]] PermissionGuideState state() const {
    return OrvanePermissionGuideWindowController::snapshot().state;
  }

  /// A check whose callback appends `name` to `granted`.
  void check(char name) {
    OrvaneAccessibilityPermission::check([this, name] { granted += name; });
    machine.runDue();
  }
  /// A check, the user's consent, and then the guide.
  void openGuide(char name = 'a') {
    check(name);
    press("Open Privacy Settings", "alert");
    machine.advance(2);
  }

  /// The guide's semantics tree, one element per line.
  static std::string description() { return ui::semanticsText(tree("guide")); }
  void press(const std::string& label, const std::string& surface) {
    EXPECT_EQ(hand.press({label, surface}), std::nullopt);
  }

  void expectGuideOrigin(double x, double y) {
    EXPECT_EQ(guide().snapshot().frame.origin.x, x);
    EXPECT_EQ(guide().snapshot().frame.origin.y, y);
  }

  std::string granted;
  desk::SystemSettings& systemSettings = desk::SystemSettings::installOn(server());
};

}  // namespace orvane
