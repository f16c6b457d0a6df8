// The modal alert that asks whether to open the system's settings for the Accessibility permission.
#include "Orvane/permission/OrvanePermissionAlert.hpp"

#include <memory>
#include <utility>

#include "Orvane/permission/OrvaneAccessibilityPermission.hpp"
#include "Orvane/permission/OrvaneAccessibilityPermissionAlertView.hpp"
#include "Orvane/permission/OrvaneModalPanelDelegate.hpp"
#include "Orvane/permission/OrvanePermissionGuideWindowController.hpp"
#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "Orvane/platform/appkit/Window.hpp"

namespace orvane {

namespace {

using appkit::Application;
namespace ModalResponse = appkit::ModalResponse;

/// Leaves System Settings time to open before the guide appears.
constexpr double guideDelaySeconds = 2.0;

appkit::Window makeAlertPanel() {
  constexpr CGSize size = OrvanePermissionAlert::contentSize;
  appkit::Window panel(appkit::WindowKind::panel, CGRectMake(0, 0, size.width, size.height),
                       appkit::StyleMask::titled | appkit::StyleMask::closable);
  panel.setClassName("OrvaneAlertPanel");
  panel.setTitlebarAppearsTransparent(true);
  panel.setTitleHidden(true);
  panel.setMovableByWindowBackground(true);
  panel.setLevel(appkit::WindowLevel::modalPanel);
  panel.setBecomesKeyOnlyIfNeeded(false);
  return panel;
}

/// Returns a function that ends the session, unless it has ended, and closes the panel. The
/// function refers to the panel weakly, because the panel's content owns the function.
std::function<void(int response)> makeFinish(
    const appkit::Window& panel, const std::shared_ptr<OrvaneModalPanelDelegate>& delegate) {
  return [weakPanel = std::weak_ptr<appkit::Window::Implementation>(panel.implementation()),
          delegate](int response) {
    delegate->stopModalOnce(response);
    if (auto implementation = weakPanel.lock()) {
      appkit::Window(std::move(implementation)).close();
    }
  };
}

void openSettingsAndGuide(const std::function<void()>& onGranted) {
  OrvaneAccessibilityPermission::openSystemSettings();
  appkit::MainQueue::asyncAfter(guideDelaySeconds, [onGranted] {
    OrvanePermissionGuideWindowController::shared().show(onGranted);
  });
}

void runAlert(const std::function<void()>& onGranted) {
  Application::activateIgnoringOtherApps();
  const auto delegate = std::make_shared<OrvaneModalPanelDelegate>();
  appkit::Window panel = makeAlertPanel();
  panel.onWillClose([delegate] { delegate->windowWillClose(); });
  const auto finish = makeFinish(panel, delegate);
  panel.setContentView(
      appkit::HostingView([finish](const ui::Environment& /*environment*/) -> ui::View {
        return OrvaneAccessibilityPermissionAlertView{
            .onOpenSettings = [finish] { finish(ModalResponse::alertFirstButton); },
            .onCancel = [finish] { finish(ModalResponse::alertSecondButton); }};
      }));
  panel.center();
  Application::runModal(panel, [panel, onGranted](int response) mutable {
    panel.clearDelegate();
    panel.clearContentView();
    if (response == ModalResponse::alertFirstButton) {
      openSettingsAndGuide(onGranted);
    }
  });
}

}  // namespace

void OrvanePermissionAlert::show(std::function<void()> onGranted) {
  appkit::MainQueue::async([onGranted = std::move(onGranted)] { runAlert(onGranted); });
}

}  // namespace orvane
