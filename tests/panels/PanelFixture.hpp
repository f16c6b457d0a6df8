// PanelFixture gives each test three displays with the whole application on them, opens the panels,
// and reads off what they show.
#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/ui/RecordingCanvas.hpp"
#include "Orvane/ui/Semantics.hpp"
#include "desk/application/ApplicationHost.hpp"
#include "desk/machine/MachineScope.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane {

/// The permission is there and nothing is guarded; no panel is open. The displays, all named: the
/// built-in main one, one to its right and one above it.
class PanelFixture : public testing::Test {
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
  ~PanelFixture() override {
    const desk::MachineEnd end = scope_.end();
    EXPECT_TRUE(end.isClean()) << (end.faults.empty() ? "something was not released"
                                                      : end.faults.front());
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

  [[nodiscard]] desk::WindowServer& server() { return desk::WindowServer::current(); }
  [[nodiscard]] OrvaneModel& model() { return application.model(); }
  [[nodiscard]] bool isOpen(const std::string& surface) {
    return desk::Surfaces(server()).isThere(surface);
  }
  [[nodiscard]] std::shared_ptr<desk::DeskWindow> window(const std::string& surface) {
    return desk::Surfaces(server()).window(surface);
  }

  [[nodiscard]] ui::SemanticsNode tree(const std::string& surface) {
    return desk::Surfaces(server()).tree(surface).value_or(ui::SemanticsNode{});
  }
  /// Every element of a panel, in the order of reading.
  [[nodiscard]] std::vector<ui::SemanticsNode> elements(const std::string& surface) {
    std::vector<ui::SemanticsNode> all;
    collect(tree(surface), all);
    return all;
  }
  [[nodiscard]] std::optional<ui::SemanticsNode> element(const std::string& label,
                                                         const std::string& surface = mainPanel) {
    for (const ui::SemanticsNode& node : elements(surface)) {
      if (node.label == label) {
        return node;
      }
    }
    return std::nullopt;
  }
  [[nodiscard]] std::vector<ui::SemanticsNode> withRole(ui::Role role, const std::string& surface) {
    std::vector<ui::SemanticsNode> found = elements(surface);
    std::erase_if(found, [&](const ui::SemanticsNode& node) { return node.role != role; });
    return found;
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
    for (const desk::SurfaceControl& control : desk::Surfaces(server()).controls(surface)) {
      if (control.node.label == label && control.node.isEnabled) {
        const bool isDone = control.press();
        machine.runDue();
        return isDone;
      }
    }
    return false;
  }
  void hover(const std::string& label, const std::string& surface = mainPanel) {
    for (const desk::SurfaceControl& control : desk::Surfaces(server()).controls(surface)) {
      if (control.node.label == label) {
        machine.mouse.moveTo({CGRectGetMidX(control.frame), CGRectGetMidY(control.frame)});
        machine.runDue();
      }
    }
  }
  bool pick(const std::string& label, const std::string& item) {
    if (!press(label, settingsPanel) || !server().menus.isOpen()) {
      return false;
    }
    const auto& items = server().menus.menu()->items;
    for (std::size_t index = 0; index < items.size(); ++index) {
      if (items[index].title == item) {
        const bool isDone = server().menus.choose(index);
        machine.runDue();
        return isDone;
      }
    }
    return false;
  }
  void key(ui::Key name, bool shift = false) {
    server().keyDown({name, {shift, false, false, false}, {}});
    machine.runDue();
  }
  void command(const std::string& character) {
    server().keyDown({ui::Key::character, {false, false, false, true}, character});
    machine.runDue();
  }

  /// All that the panel draws now, one line for each call.
  [[nodiscard]] std::vector<std::string> drawing(const std::string& surface) {
    const auto shown = window(surface);
    if (shown == nullptr || shown->content == nullptr) {
      return {};
    }
    shown->content->update();
    ui::RecordingCanvas canvas;
    const ui::Size size = shown->content->host().size();
    shown->content->host().paint(canvas, {0, 0, size.width, size.height});
    return canvas.lines();
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

 private:
  static void collect(const ui::SemanticsNode& node, std::vector<ui::SemanticsNode>& all) {
    all.push_back(node);
    for (const ui::SemanticsNode& child : node.children) {
      collect(child, all);
    }
  }

  desk::MachineScope scope_;

 protected:
  desk::Machine& machine = scope_.machine();
  desk::ApplicationHost application{machine};
};

}  // namespace orvane
