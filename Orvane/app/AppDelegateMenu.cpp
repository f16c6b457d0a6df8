// The status item's menu: a compact control panel, updated from the model whenever it opens, after
// each of its actions, and when the guard or the language changes.
#include <string>
#include <utility>
#include <vector>

#include "Orvane/app/AppDelegate.hpp"
#include "Orvane/app/OrvaneAppState.hpp"
#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/windows/OrvaneWindowController.hpp"

namespace orvane {

namespace {

OrvaneModel& model() {
  return OrvaneAppState::model();
}

}  // namespace

void AppDelegate::menuWillOpen() {
  model().refreshDisplays();
  model().refreshLaunchAtLoginStatus();
  rebuildMenuAndIcon();
}

void AppDelegate::rebuildMenuAndIcon() {
  rebuildStatusMenu();
  updateStatusItemIcon();
}

void AppDelegate::rebuildStatusMenu() {
  std::vector<StatusMenuEntry> entries;
  addSwitches(entries);
  entries.emplace_back(StatusMenuSeparator());
  addDisplayChooser(entries);
  entries.emplace_back(StatusMenuSeparator());
  addActions(entries);
  statusMenu_.show(entries);
}

void AppDelegate::addSwitches(std::vector<StatusMenuEntry>& entries) {
  const OrvaneMode mode = model().mode();
  entries.emplace_back(StatusMenuRow{
      .title = model().localized("Open at Login", "开机自动运行"),
      .systemImage = "power",
      .isOn = model().launchAtLoginEnabled().value(),
      .rowWidth = statusMenuRowWidth,
      .action = lifetime_.whileAlive([this] { toggleLaunchAtLoginFromStatusMenu(); }),
  });
  entries.emplace_back(StatusMenuSeparator());
  entries.emplace_back(StatusMenuRow{
      .title = model().localized("Prevent Dock Pop-Up", "防止 Dock 弹出"),
      .systemImage = "eye.slash",
      .isOn = mode == OrvaneMode::preventing,
      .rowWidth = statusMenuRowWidth,
      .action = lifetime_.whileAlive([this] { toggleHideDockFromStatusMenu(); }),
  });
  entries.emplace_back(StatusMenuRow{
      .title = model().localized("Pin Dock", "固定 Dock"),
      .systemImage = "lock",
      .isEnabled = model().selectedDisplayID().value().has_value(),
      .isOn = mode == OrvaneMode::pinning,
      .rowWidth = statusMenuRowWidth,
      .action = lifetime_.whileAlive([this] { toggleLockFromStatusMenu(); }),
  });
}

void AppDelegate::addDisplayChooser(std::vector<StatusMenuEntry>& entries) {
  entries.emplace_back(StatusMenuSectionHeader{model().localized("Choose Display", "选择显示器")});
  for (const DisplaySnapshot& display : model().displays().value()) {
    entries.emplace_back(StatusMenuRow{
        .title = display.isMain ? display.name + " " + model().localized("(Main)", "（主要）")
                                : display.name,
        .systemImage = "display",
        .isSelected = model().selectedDisplayID().value() == display.id,
        .rowWidth = statusMenuRowWidth,
        .action = closingTheMenu([this, id = display.id] {
          model().selectDisplay(id);
          rebuildMenuAndIcon();
        }),
    });
  }
  if (model().displays().value().empty()) {
    entries.emplace_back(StatusMenuRow{
        .title = model().localized("No displays detected", "未检测到显示器"),
        .systemImage = "display.trianglebadge.exclamationmark",
        .isEnabled = false,
        .rowWidth = statusMenuRowWidth,
    });
  }
}

void AppDelegate::addActions(std::vector<StatusMenuEntry>& entries) {
  entries.emplace_back(StatusMenuRow{
      .title = model().localized("Open Window", "打开窗口"),
      .systemImage = "macwindow",
      .rowWidth = statusMenuRowWidth,
      .action = closingTheMenu([this] {
        openMainWindowFromStatusItem();
        updateStatusItemIcon();
      }),
  });
  entries.emplace_back(StatusMenuRow{
      .title = model().localized("Settings", "设置"),
      .systemImage = "gearshape",
      .rowWidth = statusMenuRowWidth,
      .action = closingTheMenu([this] {
        openSettingsFromStatusItem();
        updateStatusItemIcon();
      }),
  });
  entries.emplace_back(StatusMenuRow{
      .title = model().localized("Quit", "退出"),
      .systemImage = "power",
      .rowWidth = statusMenuRowWidth,
      .action = closingTheMenu([this] { quitFromStatusMenu(); }),
  });
}

std::function<void()> AppDelegate::closingTheMenu(std::function<void()> action) {
  return lifetime_.whileAlive([this, ended = lifetime_.whileAlive(std::move(action))] {
    statusMenu_.menu().cancelTracking(ended);
  });
}

void AppDelegate::openMainWindowFromStatusItem() {
  OrvaneWindowController::shared().show(model());
  appkit::Application::activateIgnoringOtherApps();
}

void AppDelegate::openSettingsFromStatusItem() {
  OrvaneWindowController::shared().showSettings(model());
}

void AppDelegate::toggleLockFromStatusMenu() {
  model().toggleSelectedDisplayLock();
  rebuildMenuAndIcon();
}

void AppDelegate::toggleHideDockFromStatusMenu() {
  model().toggleHideDockOnAllDisplays();
  rebuildMenuAndIcon();
}

void AppDelegate::toggleLaunchAtLoginFromStatusMenu() {
  model().setLaunchAtLoginEnabled(!model().launchAtLoginEnabled().value());
  rebuildMenuAndIcon();
}

void AppDelegate::quitFromStatusMenu() {
  appkit::Application::terminate();
}

}  // namespace orvane
