// The entry of the application: it puts the parts together that do not know each other, and hands
// the delegate to the platform.
#include "Orvane/app/OrvaneApp.hpp"

#include <utility>

#include "Orvane/app/AppDelegate.hpp"
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

AppDelegate& appDelegate() {
  static ProcessShared<AppDelegate> shared;
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
        return OrvaneSettingsView{&model, onClose};
      };
}

}  // namespace

void OrvaneApp::install() {
  OrvaneWindowController::shared().setContents({mainPanel, settingsPanel});
  OrvaneAccessibilityPermission::setPrompt(OrvanePermissionAlert::show);
  appkit::Application::setDelegate({
      .didFinishLaunching = [] { appDelegate().applicationDidFinishLaunching(); },
      .shouldHandleReopen =
          [](bool hasVisibleWindows) {
            return appDelegate().applicationShouldHandleReopen(hasVisibleWindows);
          },
      .willTerminate = [] { appDelegate().applicationWillTerminate(); },
  });
}

}  // namespace orvane
