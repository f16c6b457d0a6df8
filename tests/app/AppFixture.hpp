// AppFixture adds the status item to ApplicationFixture: it operates its menu, and describes the
// menu and the icon as text.
#pragma once

#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "Orvane/model/OrvaneSettings.hpp"
#include "desk/script/Inspectables.hpp"
#include "desk/windows/Implementations.hpp"
#include "tests/support/ApplicationFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {

class AppFixture : public ApplicationFixture {
 protected:
  void attachTwoDisplays() {
    desk::attach(machine, desk::laptop());
    desk::attach(machine, desk::monitorAtTheRight());
    machine.runDue();
  }
  /// Attaches two displays, grants the permission and launches the application.
  void begin() {
    attachTwoDisplays();
    machine.permission.setTrusted(true);
    application.launch();
  }
  void store(const char* key, desk::PropertyValue value) {
    machine.userDefaults.set(key, std::move(value));
  }

  [[nodiscard]] bool openMenu() {
    const bool isOpen = server().menus.openStatusMenu(0);
    machine.runDue();
    return isOpen;
  }
  /// Presses a control by its label; false if there is none or it is disabled.
  bool press(const std::string& label, const std::string& surface = desk::Surfaces::menu) {
    return ApplicationFixture::press(label, surface);
  }
  /// Presses a row of the menu, open or not.
  bool pressRow(const std::string& title) {
    const auto menu = server().statusBar.item()->menu;
    for (const appkit::MenuItem& item : menu->items) {
      if (item.title == title && item.view) {
        const appkit::HostingView view = *item.view;
        view.implementation()->update();
        ui::ViewHost& host = view.implementation()->host();
        const auto controls = desk::findControls(host.semantics());
        const bool isDone = !controls.empty() && host.press(controls.front().id);
        machine.runDue();
        return isDone;
      }
    }
    return false;
  }
  /// The middle of an open menu's row, in global coordinates.
  [[nodiscard]] CGPoint middleOf(const std::string& title) {
    const auto place = hand.menuItemCenter(title);
    EXPECT_TRUE(place) << "no row " << title;
    return place.value_or(CGPoint{});
  }
  /// Blocks so many movements on the display at the right that the guard shuts itself off.
  void letBlockingRunAway() {
    for (int count = 0; count < 200; ++count) {
      machine.mouse.post({2800, 1075}, 0);
    }
    machine.runDue();
  }

  /// The menu as text, one line per row: its symbol, its title, its state.
  [[nodiscard]] std::string menuText() {
    std::string text;
    const auto snapshot = desk::script::statusMenuSnapshot();
    for (const auto& row : snapshot["rows"]) {
      text += rowText(row) + "\n";
    }
    return text;
  }
  /// The line of one row.
  [[nodiscard]] std::string row(const std::string& title) {
    const auto snapshot = desk::script::statusMenuSnapshot();
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
};

}  // namespace orvane
