// AppFixture gives each test a machine on which the whole application can be launched, hands to
// work it with, and words for what its menu and its icon show.
#pragma once

#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "Orvane/model/OrvaneSettings.hpp"
#include "desk/application/ApplicationHost.hpp"
#include "desk/machine/MachineScope.hpp"
#include "desk/script/MenuSnapshot.hpp"
#include "desk/windows/Implementations.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {

/// The machine has no display and no permission, and the application does not run yet.
class AppFixture : public testing::Test {
 protected:
  ~AppFixture() override {
    const desk::MachineEnd end = scope_.end();
    EXPECT_TRUE(end.isClean()) << (end.faults.empty() ? "something was not released"
                                                      : end.faults.front());
  }

  void attachTwoDisplays() {
    desk::attach(machine, desk::laptop());
    desk::attach(machine, desk::monitorAtTheRight());
    machine.runDue();
  }
  /// Two displays, the permission, and the application running.
  void begin() {
    attachTwoDisplays();
    machine.permission.setTrusted(true);
    application.launch();
  }
  void store(const char* key, desk::PropertyValue value) {
    machine.userDefaults.set(key, std::move(value));
  }

  [[nodiscard]] desk::WindowServer& server() { return desk::WindowServer::current(); }
  [[nodiscard]] OrvaneModel& model() { return application.model(); }

  [[nodiscard]] bool openMenu() {
    const bool isOpen = server().menus.openStatusMenu(0);
    machine.runDue();
    return isOpen;
  }
  /// The accessibility press of a control by its label; false when there is none or it is disabled.
  bool press(const std::string& label, const std::string& surface = desk::Surfaces::menu) {
    for (const desk::SurfaceControl& control : desk::Surfaces(server()).controls(surface)) {
      if (control.node.label == label && control.node.isEnabled) {
        const bool isDone = control.press();
        machine.runDue();
        return isDone;
      }
    }
    return false;
  }
  /// The same for a row of a menu that need not be open.
  bool pressRow(const std::string& title) {
    const auto menu = server().statusBar.item()->menu;
    for (const appkit::MenuItem& item : menu->items) {
      if (item.title == title && item.view) {
        const appkit::HostingView view = *item.view;
        view.implementation()->update();
        const bool isDone = pressFirst(*view.implementation());
        machine.runDue();
        return isDone;
      }
    }
    return false;
  }
  /// The middle of an open menu's row, in global coordinates.
  [[nodiscard]] CGPoint middleOf(const std::string& title) {
    server().menus.layOut();
    for (const desk::MenuRow& row : server().menus.rows()) {
      if (server().menus.menu()->items[row.itemIndex].title == title) {
        return {CGRectGetMidX(row.frame), CGRectGetMidY(row.frame)};
      }
    }
    ADD_FAILURE() << "no row " << title;
    return {};
  }
  /// Blocked moves at one instant on the display at the right, more than the guard lets happen
  /// before it shuts itself off.
  void letBlockingRunAway() {
    for (int count = 0; count < 200; ++count) {
      machine.mouse.post({2800, 1075}, 0);
    }
    machine.runDue();
  }
  void moveTo(CGPoint place) {
    machine.mouse.moveTo(place);
    machine.runDue();
  }
  void key(ui::Key name) {
    server().keyDown({name, {}, {}});
    machine.runDue();
  }

  /// The menu in words, one row in each line: its symbol, its title, what distinguishes it.
  [[nodiscard]] std::string menuText() {
    std::string text;
    const auto snapshot = desk::script::statusMenuSnapshot(server());
    for (const auto& row : snapshot["rows"]) {
      text += rowText(row) + "\n";
    }
    return text;
  }
  /// The line of one row.
  [[nodiscard]] std::string row(const std::string& title) {
    const auto snapshot = desk::script::statusMenuSnapshot(server());
    for (const auto& shown : snapshot["rows"]) {
      if (shown.value("title", "") == title) {
        return rowText(shown);
      }
    }
    return "no row " + title;
  }
  /// The name of the icon's symbol; empty without one.
  [[nodiscard]] std::string icon() {
    const desk::StatusBarItem* const item = server().statusBar.item();
    return item == nullptr || item->image == nullptr ? "" : item->image->name;
  }

 private:
  static std::string rowText(const nlohmann::ordered_json& row) {
    const std::string kind = row["kind"];
    if (kind == "separator") {
      return "-";
    }
    if (kind == "header") {
      return "# " + row["title"].get<std::string>();
    }
    std::string text = row["symbol"].is_null() ? "?" : row["symbol"].get<std::string>();
    text += " | " + row["title"].get<std::string>();
    if (!row["isOn"].is_null()) {
      text += row["isOn"].get<bool>() ? " | on" : " | off";
    }
    text += row["isSelected"].get<bool>() ? " | selected" : "";
    text += row["isEnabled"].get<bool>() ? "" : " | disabled";
    const bool isConsistent = row["isEnabled"] == row["itemEnabled"];
    return text + (isConsistent ? "" : " | item differs");
  }
  static bool pressFirst(desk::HostedView& view) {
    return pressFirst(view, view.host().semantics());
  }
  static bool pressFirst(desk::HostedView& view, const ui::SemanticsNode& node) {
    if (node.isControl()) {
      return view.host().perform(node.id, ui::SemanticsAction::press);
    }
    for (const ui::SemanticsNode& child : node.children) {
      if (pressFirst(view, child)) {
        return true;
      }
    }
    return false;
  }

  desk::MachineScope scope_;

 protected:
  desk::Machine& machine = scope_.machine();
  desk::ApplicationHost application{machine};
};

}  // namespace orvane
