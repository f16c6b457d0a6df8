// The application's entry point: connects the parts that do not know each other.
#include "Orvane/app/OrvaneApp.hpp"

#include <utility>

#include "Orvane/app/OrvaneAppState.hpp"
#include "Orvane/base/ProcessShared.hpp"
#include "Orvane/panels/main/ContentView.hpp"
#include "Orvane/panels/settings/OrvaneSettingsView.hpp"
#include "Orvane/permission/OrvaneAccessibilityPermission.hpp"
#include "Orvane/permission/OrvanePermissionAlert.hpp"
#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/windows/OrvaneWindowController.hpp"

namespace orvane {

namespace {

using RootBuilder = appkit::HostingView::RootBuilder;

OrvaneApp& orvaneApp() {
  static ProcessShared<OrvaneApp> shared;
  return shared.get();
}

RootBuilder mainPanel(OrvaneModel& model) {
  return [&model](const ui::Environment& /*environment*/) -> ui::View {
    return ContentView{
        &model,
        {.close = [] { OrvaneWindowController::shared().closeWindow(); },
         .minimise = [] { OrvaneWindowController::shared().miniaturizeWindow(); },
         .showSettings = [&model] { OrvaneWindowController::shared().showSettings(model); }}};
  };
}

RootBuilder settingsPanel(OrvaneModel& model, std::function<void()> onClose) {
  return
      [&model, onClose = std::move(onClose)](const ui::Environment& /*environment*/) -> ui::View {
        return OrvaneSettingsView{.model = &model, .onClose = onClose};
      };
}

}  // namespace

void OrvaneApp::install() {
  OrvaneWindowController::shared().setContents({mainPanel, settingsPanel});
  OrvaneAccessibilityPermission::setPrompt(OrvanePermissionAlert::show);
  appkit::Application::setDelegate({
      .didFinishLaunching = [] { orvaneApp().didFinishLaunching(); },
      .shouldHandleReopen =
          [](bool hasVisibleWindows) {
            return orvaneApp().delegate_.applicationShouldHandleReopen(hasVisibleWindows);
          },
      .performKeyEquivalent =
          [](const ui::KeyEvent& event) {
            return orvaneApp().delegate_.performKeyEquivalent(event);
          },
      .willTerminate = [] { orvaneApp().willTerminate(); },
  });
}

void OrvaneApp::didFinishLaunching() {
  delegate_.applicationDidFinishLaunching();
  OrvaneModel& model = OrvaneAppState::model();
  tapWatch_.emplace(model);
  guardChanges_ = model.guardChanges().observe([this] { guardChanged(); });
}

void OrvaneApp::guardChanged() {
  if (OrvaneAppState::model().isGuardRunning()) {
    activity_.emplace("Moves the pointer away from the Dock's edge");
  } else {
    activity_.reset();
  }
}

void OrvaneApp::willTerminate() {
  guardChanges_.cancel();
  tapWatch_.reset();
  delegate_.applicationWillTerminate();
}

}  // namespace orvane
