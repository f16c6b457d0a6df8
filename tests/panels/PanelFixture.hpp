// PanelFixture gives each test three displays with the whole application on them, opens the panels,
// and reads off what they show.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/ui/views/Semantics.hpp"
#include "tests/support/ApplicationFixture.hpp"

namespace orvane {

/// The permission is there and nothing is guarded; no panel is open. The displays, all named: the
/// built-in main one, one to its right and one above it.
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
    desk::Display display;
    display.number = number;
    display.uuid = "DISPLAY-" + std::to_string(number);
    display.frame = frame;
    display.name = name;
    display.isBuiltIn = isBuiltIn;
    EXPECT_FALSE(machine.displays.attach(display, number == 1));
  }

  void detachAll() {
    while (!machine.displays.isEmpty()) {
      EXPECT_FALSE(machine.displays.detach(machine.displays.all().back().number));
    }
    machine.runDue();
  }

  /// Opens the main panel and lets its entrance pass.
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

  /// Every element of a panel, in the order of reading.
  [[nodiscard]] std::vector<ui::SemanticsNode> elements(const std::string& surface) {
    return desk::findElements(tree(surface), [](const ui::SemanticsNode&) { return true; });
  }
  [[nodiscard]] std::optional<ui::SemanticsNode> element(const std::string& label,
                                                         const std::string& surface = mainPanel) {
    return desk::findElement(tree(surface),
                             [&](const ui::SemanticsNode& node) { return node.label == label; });
  }
  [[nodiscard]] std::vector<ui::SemanticsNode> withRole(ui::Role role, const std::string& surface) {
    return desk::findElements(tree(surface),
                              [role](const ui::SemanticsNode& node) { return node.role == role; });
  }
  /// The frame of the element, or one that no element has.
  [[nodiscard]] ui::Rect frameOf(const std::string& label, const std::string& surface = mainPanel) {
    const auto found = element(label, surface);
    EXPECT_TRUE(found) << "no \"" << label << "\" in " << surface;
    return found ? found->frame : ui::Rect{-1, -1, -1, -1};
  }
  /// What the status pill of the panel with this title says.
  [[nodiscard]] std::string pill(const std::string& title) {
    for (const ui::SemanticsNode& node : withRole(ui::Role::staticText, mainPanel)) {
      if (node.label == title && !node.value.empty()) {
        return node.value;
      }
    }
    return "no pill";
  }

  /// The accessibility press of an enabled control; false when there is none.
  bool press(const std::string& label, const std::string& surface = mainPanel) {
    return ApplicationFixture::press(label, surface);
  }
  void hover(const std::string& label, const std::string& surface = mainPanel) {
    if (const auto control = hand.control(label, surface)) {
      moveTo({CGRectGetMidX(control->frame), CGRectGetMidY(control->frame)});
    }
  }
  bool pick(const std::string& label, const std::string& item) {
    return !hand.pick({label, settingsPanel}, item);
  }

  /// All that the panel draws now, one line for each call.
  [[nodiscard]] std::vector<std::string> drawing(const std::string& surface) {
    return drawnLines(surface);
  }
  /// How many lines of the drawing have the part in them.
  [[nodiscard]] std::ptrdiff_t drawn(const std::string& part,
                                     const std::string& surface = mainPanel) {
    const std::vector<std::string> lines = drawing(surface);
    return std::ranges::count_if(
        lines, [&](const std::string& line) { return line.find(part) != std::string::npos; });
  }

  /// How opaque the layers around it leave the first line of the drawing with the part in it; 0
  /// when there is no such line.
  [[nodiscard]] double opacityOf(const std::string& part, const std::string& surface = mainPanel) {
    const std::string mark = " opacity ";
    std::vector<std::pair<std::size_t, double>> layers;
    for (const std::string& line : drawing(surface)) {
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
