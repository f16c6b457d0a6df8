// The application's delegate: launch and termination, the status item with its icon and its menu.
#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "Orvane/app/StatusMenu.hpp"
#include "Orvane/base/Lifetime.hpp"
#include "Orvane/base/Signal.hpp"
#include "Orvane/model/GuardAnnouncer.hpp"
#include "Orvane/model/OrvaneMode.hpp"
#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/Image.hpp"
#include "Orvane/platform/appkit/StatusItem.hpp"
#include "Orvane/platform/appkit/Timer.hpp"
#include "Orvane/ui/views/KeyboardShortcut.hpp"

namespace orvane {

/// Lives for the whole process. Main thread only.
class AppDelegate {
 public:
  /// In points.
  static constexpr double statusMenuRowWidth = 208;
  static constexpr double statusMenuSectionHeaderWidth = 208;
  static constexpr CGSize statusBarIconSize{18, 18};

  void applicationDidFinishLaunching();
  /// The user has opened the running application again.
  bool applicationShouldHandleReopen(bool hasVisibleWindows);
  /// Leaves the guard running: its tap ends with the process, and the stored setting restarts it at
  /// the next launch.
  void applicationWillTerminate();

  void menuWillOpen();

  /// Handles a key that the key window did not. Returns whether it was a command of the
  /// application.
  bool performKeyEquivalent(const ui::KeyEvent& event);

  void openMainWindowFromStatusItem();
  void openSettingsFromStatusItem();
  void toggleLockFromStatusMenu();
  void toggleHideDockFromStatusMenu();
  void toggleLaunchAtLoginFromStatusMenu();
  void quitFromStatusMenu();

 private:
  void setupStatusItem();
  void observeModelChanges();
  void refreshStatusItemTimerFired();
  void updateStatusItemIcon();
  [[nodiscard]] static std::optional<appkit::Image> statusBarImage(std::string_view name);

  void rebuildStatusMenu();
  void addSwitches(std::vector<StatusMenuEntry>& entries);
  void addDisplayChooser(std::vector<StatusMenuEntry>& entries);
  void addActions(std::vector<StatusMenuEntry>& entries);
  void rebuildMenuAndIcon();
  /// An action that closes the menu and then runs `action`.
  [[nodiscard]] std::function<void()> closingTheMenu(std::function<void()> action);

  std::optional<appkit::StatusItem> statusItem_;
  StatusMenu statusMenu_{statusMenuSectionHeaderWidth};
  OrvaneMode shownMode_ = OrvaneMode::off;
  std::optional<appkit::Timer> statusRefreshTimer_;
  Subscription modelCancellable_;
  Subscription guardCancellable_;
  GuardAnnouncer announcer_;
  Lifetime lifetime_;
};

}  // namespace orvane
