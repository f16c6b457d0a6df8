// The menu under the status item: a compact control panel, built anew from the model whenever it
// opens, after each action taken in it, and when the language changes.
#include <string>
#include <utility>

#include "Orvane/app/AppDelegate.hpp"
#include "Orvane/app/OrvaneAppState.hpp"
#include "Orvane/app/StatusMenuRow.hpp"
#include "Orvane/app/StatusMenuSectionHeader.hpp"
#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/windows/OrvaneWindowController.hpp"

namespace orvane {

namespace {

OrvaneModel& model() {
  return OrvaneAppState::model();
}

appkit::HostingView hosted(const ui::View& view, CGSize size) {
  appkit::HostingView host([view](const ui::Environment& /*environment*/) { return view; });
  host.setFrame(CGRectMake(0, 0, size.width, size.height));
  return host;
}

appkit::MenuItem rowItem(const StatusMenuRow& row) {
  appkit::MenuItem item;
  item.title = row.title;
  item.isEnabled = row.isEnabled;
  item.isOn = row.isOn.value_or(row.isSelected);
  item.keepsMenuOpen = row.isOn.has_value();
  item.action = row.action;
  item.view = hosted(row, CGSizeMake(row.rowWidth, StatusMenuRow::rowHeight));
  return item;
}

appkit::MenuItem headerItem(const std::string& title) {
  appkit::MenuItem item;
  item.title = title;
  item.isEnabled = false;
  item.view = hosted(
      StatusMenuSectionHeader{title},
      CGSizeMake(AppDelegate::statusMenuSectionHeaderWidth, StatusMenuSectionHeader::height));
  return item;
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
  statusMenu_.removeAllItems();
  addSwitches();
  statusMenu_.addItem(appkit::MenuItem::separator());
  addDisplayChooser();
  statusMenu_.addItem(appkit::MenuItem::separator());
  addActions();
}

void AppDelegate::addSwitches() {
  const OrvaneMode mode = model().mode();
  statusMenu_.addItem(rowItem({
      .title = model().localized("Open at Login", "开机自动运行"),
      .systemImage = "power",
      .isOn = model().launchAtLoginEnabled().value(),
      .rowWidth = statusMenuRowWidth,
      .action = lifetime_.whileAlive([this] { toggleLaunchAtLoginFromStatusMenu(); }),
  }));
  statusMenu_.addItem(appkit::MenuItem::separator());
  statusMenu_.addItem(rowItem({
      .title = model().localized("Prevent Dock Pop-Up", "防止 Dock 弹出"),
      .systemImage = "eye.slash",
      .isOn = mode == OrvaneMode::preventing,
      .rowWidth = statusMenuRowWidth,
      .action = lifetime_.whileAlive([this] { toggleHideDockFromStatusMenu(); }),
  }));
  statusMenu_.addItem(rowItem({
      .title = model().localized("Pin Dock", "固定 Dock"),
      .systemImage = "lock",
      .isEnabled = model().selectedDisplayID().value().has_value(),
      .isOn = mode == OrvaneMode::pinning,
      .rowWidth = statusMenuRowWidth,
      .action = lifetime_.whileAlive([this] { toggleLockFromStatusMenu(); }),
  }));
}

void AppDelegate::addDisplayChooser() {
  statusMenu_.addItem(headerItem(model().localized("Choose Display", "选择显示器")));
  for (const DisplaySnapshot& display : model().displays().value()) {
    statusMenu_.addItem(rowItem({
        .title = display.isMain ? display.name + " " + model().localized("(Main)", "（主要）")
                                : display.name,
        .systemImage = "display",
        .isSelected = model().selectedDisplayID().value() == display.id,
        .rowWidth = statusMenuRowWidth,
        .action = closingTheMenu([this, id = display.id] {
          model().selectDisplay(id);
          rebuildMenuAndIcon();
        }),
    }));
  }
  if (model().displays().value().empty()) {
    statusMenu_.addItem(rowItem({
        .title = model().localized("No displays detected", "未检测到显示器"),
        .systemImage = "display.trianglebadge.exclamationmark",
        .isEnabled = false,
        .rowWidth = statusMenuRowWidth,
    }));
  }
}

void AppDelegate::addActions() {
  statusMenu_.addItem(rowItem({
      .title = model().localized("Open Window", "打开窗口"),
      .systemImage = "macwindow",
      .rowWidth = statusMenuRowWidth,
      .action = closingTheMenu([this] {
        openMainWindowFromStatusItem();
        updateStatusItemIcon();
      }),
  }));
  statusMenu_.addItem(rowItem({
      .title = model().localized("Settings", "设置"),
      .systemImage = "gearshape",
      .rowWidth = statusMenuRowWidth,
      .action = closingTheMenu([this] {
        openSettingsFromStatusItem();
        updateStatusItemIcon();
      }),
  }));
  statusMenu_.addItem(rowItem({
      .title = model().localized("Quit", "退出"),
      .systemImage = "power",
      .rowWidth = statusMenuRowWidth,
      .action = closingTheMenu([this] { quitFromStatusMenu(); }),
  }));
}

std::function<void()> AppDelegate::closingTheMenu(std::function<void()> action) {
  return lifetime_.whileAlive([this, action = std::move(action)] {
    // The action may rebuild the menu and with it destroy this closure.
    const std::function<void()> kept = action;
    statusMenu_.cancelTracking();
    kept();
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
