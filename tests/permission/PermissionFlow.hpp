// PermissionFlow gives each test two displays, an application without the permission, and functions
// that operate its windows.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Orvane/permission/OrvaneAccessibilityPermission.hpp"
#include "Orvane/permission/OrvanePermissionAlert.hpp"
#include "Orvane/permission/OrvanePermissionGuideWindowController.hpp"
#include "Orvane/ui/RecordingCanvas.hpp"
#include "desk/settings/SystemSettings.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "tests/support/MachineFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {

/// The laptop is display 1, with the Dock, the monitor at its right display 2.
class PermissionFlow : public desk::MachineFixture {
 protected:
  PermissionFlow() {
    desk::attach(machine, desk::laptop());
    desk::attach(machine, desk::monitorAtTheRight());
    machine.mouse.moveTo({20, 200});
    OrvaneAccessibilityPermission::setPrompt(OrvanePermissionAlert::show);
  }

  desk::WindowServer& server() { return desk::WindowServer::current(); }
  OrvanePermissionGuideWindowController& guide() {
    return OrvanePermissionGuideWindowController::shared();
  }
  [[nodiscard]] bool isGuideVisible() const {
    return OrvanePermissionGuideWindowController::sharedExists() &&
           OrvanePermissionGuideWindowController::shared().panel().isVisible();
  }
  PermissionGuideState state() { return guide().viewModel().state.value(); }

  /// A check whose callback appends `name` to `granted`.
  void check(char name) {
    OrvaneAccessibilityPermission::check([this, name] { granted += name; });
    machine.runDue();
  }
  /// A check, the user's consent, and the guide that follows.
  void openGuide(char name = 'a') {
    check(name);
    press("Open Privacy Settings", "alert");
    machine.advance(2);
  }

  std::shared_ptr<desk::DeskWindow> window(const std::string& surface) {
    return desk::Surfaces(server()).window(surface);
  }
  /// The top-level semantics elements of the surface.
  std::vector<ui::SemanticsNode> children(const std::string& surface) {
    const auto tree = desk::Surfaces(server()).tree(surface);
    return tree ? tree->children : std::vector<ui::SemanticsNode>{};
  }
  /// The semantics tree as text, one element per line.
  std::string elements(const std::string& surface) {
    const auto tree = desk::Surfaces(server()).tree(surface);
    return tree ? ui::describeSemantics(*tree) : "";
  }
  /// The recorded drawing calls, one per line.
  std::string drawing(const std::string& surface) {
    const auto view = window(surface)->content;
    view->update();
    ui::RecordingCanvas canvas;
    const ui::Size size = view->host().size();
    view->host().paint(canvas, {0, 0, size.width, size.height});
    return canvas.text();
  }
  void press(const std::string& label, const std::string& surface) {
    for (const desk::SurfaceControl& control : desk::Surfaces(server()).controls(surface)) {
      if (control.node.label == label) {
        EXPECT_TRUE(control.press()) << label;
        machine.runDue();
        return;
      }
    }
    ADD_FAILURE() << "there is no " << label << " in " << surface;
  }
  void key(ui::Key name) {
    server().keyDown({name, {}, {}});
    machine.runDue();
  }
  /// In global coordinates.
  void pressAt(CGPoint place) {
    machine.mouse.moveTo(place);
    machine.runDue();
    machine.mouse.pressButton();
    machine.runDue();
  }
  void moveTo(CGPoint place) {
    machine.mouse.moveTo(place);
    machine.runDue();
  }
  void release() {
    machine.mouse.releaseButton();
    machine.runDue();
  }

  std::string granted;
  desk::SystemSettings& systemSettings = desk::SystemSettings::installOn(server());
};

}  // namespace orvane
