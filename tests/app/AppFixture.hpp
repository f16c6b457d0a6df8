// AppFixture adds the status item to ApplicationFixture: it operates its menu, and describes the
// menu and the icon as text.
#pragma once

#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

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

  [[nodiscard]] bool openMenu() {
    const bool isOpen = server().menus.openStatusMenu(0);
    machine.runDue();
    return isOpen;
  }
  /// Presses a control by its label; false if there is none or it is disabled.
  bool press(const std::string& label, const std::string& surface = desk::Surfaces::menu) {
    return ApplicationFixture::press(label, surface);
  }
  /// The middle of an open menu's row, in global coordinates.
  [[nodiscard]] CGPoint middleOf(const std::string& title) {
    const auto place = hand.menuItemCenter(title);
    EXPECT_TRUE(place) << "no row " << title;
    return place.value_or(CGPoint{});
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
