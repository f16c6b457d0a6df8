// The application's delegate: launch and termination, and the status item with its icon. The menu
// is in AppDelegateMenu.cpp.
#include "Orvane/app/AppDelegate.hpp"

#include "Orvane/app/OrvaneAppState.hpp"
#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "Orvane/windows/OrvaneWindowController.hpp"

namespace orvane {

void AppDelegate::applicationDidFinishLaunching() {
  appkit::Application::setActivationPolicy(appkit::ActivationPolicy::accessory);
  setupStatusItem();
  OrvaneAppState::model().restoreLockIfNeeded();
  updateStatusItemIcon();
}

void AppDelegate::setupStatusItem() {
  constexpr double refreshSeconds = 1.0;
  statusItem_.emplace();
  statusItem_->setAutosaveName("Orvane");
  statusItem_->setImagePosition(appkit::ImagePosition::imageOnly);
  statusItem_->setImageScaling(appkit::ImageScaling::proportionallyDown);
  statusItem_->setSquareLength();
  statusMenu_.menu().onWillOpen(lifetime_.whileAlive([this] { menuWillOpen(); }));
  statusItem_->setMenu(statusMenu_.menu());
  observeModelChanges();
  rebuildStatusMenu();
  updateStatusItemIcon();
  statusRefreshTimer_ =
      appkit::Timer::repeating(refreshSeconds, appkit::RunLoopMode::common,
                               lifetime_.whileAlive([this] { refreshStatusItemTimerFired(); }));
}

void AppDelegate::observeModelChanges() {
  // The signal comes before the displays have their names in the new language, so the menu is
  // rebuilt after the caller has returned.
  const std::function<void()> rebuild = lifetime_.whileAlive([this] { rebuildMenuAndIcon(); });
  modelCancellable_ = OrvaneAppState::model().appLanguage().observe(
      [rebuild] { appkit::MainQueue::async(rebuild); });
  guardCancellable_ = OrvaneAppState::model().guardChanges().observe(
      lifetime_.whileAlive([this] { refreshStatusItemTimerFired(); }));
}

void AppDelegate::refreshStatusItemTimerFired() {
  OrvaneModel& model = OrvaneAppState::model();
  announcer_.update(model);
  if (shownMode_ == model.mode()) {
    return;
  }
  if (statusMenu_.menu().isOpen()) {
    rebuildMenuAndIcon();
  } else {
    updateStatusItemIcon();
  }
}

void AppDelegate::updateStatusItemIcon() {
  const OrvaneModel& model = OrvaneAppState::model();
  shownMode_ = model.mode();
  const bool isRunning = shownMode_ != OrvaneMode::off;
  statusItem_->setImage(statusBarImage(isRunning ? "lock.fill" : "lock.open"));
  statusItem_->setAccessibilityValue(isRunning ? model.localized("Locked", "已锁定")
                                               : model.localized("Unlocked", "未锁定"));
}

std::optional<appkit::Image> AppDelegate::statusBarImage(std::string_view name) {
  constexpr double pointSize = 16;
  std::optional<appkit::Image> image =
      appkit::Image::systemSymbol(name, "Orvane", pointSize, appkit::SymbolWeight::regular);
  if (image) {
    image->setTemplate(true);
    image->setSize(statusBarIconSize);
  }
  return image;
}

bool AppDelegate::performKeyEquivalent(const ui::KeyEvent& event) {
  const auto isCommand = [&event](const char* key) {
    return ui::KeyboardShortcut::command(key).matches(event);
  };
  if (isCommand("q")) {
    quitFromStatusMenu();
    return true;
  }
  // An alert must be answered first. Once hidden, it could not be shown again, because the
  // application has no icon in the Dock.
  if (appkit::Application::modalWindow()) {
    return false;
  }
  if (isCommand(",")) {
    openSettingsFromStatusItem();
    return true;
  }
  if (isCommand("h")) {
    appkit::Application::hide();
    return true;
  }
  return false;
}

bool AppDelegate::applicationShouldHandleReopen(bool /*hasVisibleWindows*/) {
  OrvaneWindowController::shared().show(OrvaneAppState::model());
  return true;
}

void AppDelegate::applicationWillTerminate() {
  statusRefreshTimer_.reset();
  modelCancellable_.cancel();
  guardCancellable_.cancel();
}

}  // namespace orvane
