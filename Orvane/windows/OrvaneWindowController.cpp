// Shows and positions the two panels, keeps the settings attached to the main panel, and releases
// each panel when it closes.
#include "Orvane/windows/OrvaneWindowController.hpp"

#include <algorithm>
#include <vector>

#include "Orvane/base/ProcessShared.hpp"
#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/platform/appkit/Screen.hpp"

namespace orvane {

namespace {

using appkit::Application;

/// The origin of a window of this size centred in `area`.
CGPoint originCentredIn(CGRect area, CGSize size) {
  return CGPointMake(CGRectGetMidX(area) - size.width * 0.5,
                     CGRectGetMidY(area) - size.height * 0.5);
}

void bringToFront(appkit::Window& window) {
  if (window.isMiniaturized()) {
    window.deminiaturize();
  }
  window.makeKeyAndOrderFront();
  window.orderFrontRegardless();
  Application::activateIgnoringOtherApps();
}

}  // namespace

OrvaneWindowController& OrvaneWindowController::shared() {
  static ProcessShared<OrvaneWindowController> shared;
  return shared.get();
}

void OrvaneWindowController::show(OrvaneModel& model) {
  Application::setActivationPolicy(appkit::ActivationPolicy::accessory);
  const bool needsPlacement = !window_ || !window_->isVisible();
  if (!window_) {
    window_.emplace(model, contents_.mainPanel(model));
  }
  window_->onWillClose(lifetime_.whileAlive([this] { windowWillClose(); }));
  if (needsPlacement) {
    centreOnMainScreen();
  }
  bringToFront(*window_);
}

void OrvaneWindowController::centreOnMainScreen() {
  if (const auto screen = appkit::Screen::mainScreen()) {
    window_->setFrameOrigin(originCentredIn(screen->visibleFrame(), OrvaneWindow::contentSize));
  }
}

void OrvaneWindowController::showSettings(OrvaneModel& model) {
  show(model);
  if (!settingsWindow_) {
    settingsWindow_.emplace(
        model,
        contents_.settingsPanel(model, lifetime_.whileAlive([this] { closeSettingsWindow(); })));
  }
  settingsWindow_->onWillClose(lifetime_.whileAlive([this] { settingsWindowWillClose(); }));
  placeSettings();
  bringToFront(*settingsWindow_);
}

void OrvaneWindowController::placeSettings() {
  settingsWindow_->setFrameOrigin(originCentredIn(window_->frame(), settingsWindow_->frame().size));
  const std::vector<appkit::Window> children = window_->childWindows();
  if (std::ranges::find(children, static_cast<const appkit::Window&>(*settingsWindow_)) ==
      children.end()) {
    window_->addChildWindowAbove(*settingsWindow_);
  }
}

void OrvaneWindowController::closeWindow() {
  if (window_) {
    appkit::Window(*window_).close();
  }
}

void OrvaneWindowController::closeSettingsWindow() {
  if (settingsWindow_) {
    appkit::Window(*settingsWindow_).close();
  }
}

void OrvaneWindowController::miniaturizeWindow() {
  if (window_) {
    window_->miniaturize();
  }
}

void OrvaneWindowController::settingsWindowWillClose() {
  if (window_ && settingsWindow_) {
    window_->removeChildWindow(*settingsWindow_);
  }
  settingsWindow_.reset();
}

void OrvaneWindowController::windowWillClose() {
  closeSettingsWindow();
  window_.reset();
  Application::setActivationPolicy(appkit::ActivationPolicy::accessory);
}

}  // namespace orvane
