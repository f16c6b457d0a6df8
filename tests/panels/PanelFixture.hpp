// PanelFixture gives each test three displays with the whole application on them, opens the panels
// and reads what they show.
#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/ui/views/Semantics.hpp"
#include "tests/support/ApplicationFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {

/// The permission is granted, the guard does not run, and no panel is open. The displays, all
/// named: the built-in main one, one to its right and one above it.
class PanelFixture : public ApplicationFixture {
 protected:
  static constexpr const char* mainPanel = "main";
  static constexpr const char* settingsPanel = "settings";

  PanelFixture() {
    attach(1, CGRectMake(0, 0, 1440, 900), "Color LCD", true);
    attach(2, CGRectMake(1440, 0, 1920, 1080), "DELL", false);
    attach(3, CGRectMake(0, 900, 1440, 900), "LG", false);
    machine.permission.setTrusted(true);
    application.launch();
  }

  void attach(std::uint32_t number, CGRect frame, const std::string& name, bool isBuiltIn) {
    desk::Display display = desk::displayOf(number, name, frame);
    display.uuid = "DISPLAY-" + std::to_string(number);
    display.isBuiltIn = isBuiltIn;
    desk::attach(machine, display, number == 1);
  }

  /// Leaves a single display that is little larger than the main panel.
  void useSmallDisplay() {
    desk::detach(machine, 3);
    desk::detach(machine, 2);
    EXPECT_FALSE(machine.displays.setFrame(1, CGRectMake(0, 0, 720, 620)));
  }
  void detachAll() {
    while (!machine.displays.isEmpty()) {
      desk::detach(machine, machine.displays.all().back().number);
    }
    machine.runDue();
  }

  /// Opens the main panel and waits for the end of its entrance.
  void openMain() {
    application.reopen();
    machine.advance(1);
  }
  /// Opens both panels.
  void openSettings() {
    openMain();
    press("Settings");
    machine.advance(1);
  }

  /// The text of the status pill of the panel with this title.
  [[nodiscard]] std::string pill(const std::string& title) {
    for (const ui::SemanticsNode& node : withRole(ui::Role::staticText, mainPanel)) {
      if (node.label == title && !node.value.empty()) {
        return node.value;
      }
    }
    return "no pill";
  }

  void hover(const std::string& label, const std::string& surface = mainPanel) {
    if (const auto control = hand.control(label, surface)) {
      moveTo({CGRectGetMidX(control->frame), CGRectGetMidY(control->frame)});
    }
  }
  bool pick(const std::string& label, const std::string& item) {
    return !hand.pick({label, settingsPanel}, item);
  }

  /// The product of the opacities of the layers around the first line of the drawing that contains
  /// `part`; 0 when no line does.
  [[nodiscard]] double opacityOf(const std::string& part, const std::string& surface = mainPanel) {
    const std::string mark = " opacity ";
    std::vector<std::pair<std::size_t, double>> layers;
    for (const std::string& line : drawnLines(surface)) {
      const std::size_t depth = line.find_first_not_of(' ');
      while (!layers.empty() && layers.back().first >= depth) {
        layers.pop_back();
      }
      const double outside = layers.empty() ? 1 : layers.back().second;
      if (line.find(part) != std::string::npos) {
        return outside;
      }
      if (line.compare(depth, 7, "layer (") == 0) {
        const double opacity = std::stod(line.substr(line.find(mark) + mark.size()));
        layers.emplace_back(depth, outside * opacity);
      }
    }
    return 0;
  }
};

}  // namespace orvane
