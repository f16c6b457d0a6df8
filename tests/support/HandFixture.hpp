// HandFixture gives each test a hand on its machine and access to the open windows.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desk/hand/FindControl.hpp"
#include "desk/hand/Hand.hpp"
#include "desk/windows/WindowServer.hpp"
#include "tests/support/MachineFixture.hpp"
#include "tests/support/RecordingCanvas.hpp"

namespace orvane::desk {

/// The surface is the main panel where none is named.
class HandFixture : public MachineFixture {
 protected:
  using MachineFixture::MachineFixture;

  static WindowServer& server() { return WindowServer::current(); }
  [[nodiscard]] static std::shared_ptr<DeskWindow> window(const std::string& surface) {
    return Surfaces(server()).window(surface);
  }
  [[nodiscard]] static bool isOpen(const std::string& surface) {
    return Surfaces(server()).isOpen(surface);
  }
  /// The semantics tree of the surface, empty when it is not open.
  [[nodiscard]] static ui::SemanticsNode tree(const std::string& surface) {
    return Surfaces(server()).tree(surface).value_or(ui::SemanticsNode{});
  }
  /// All elements of the surface, in reading order.
  [[nodiscard]] static std::vector<ui::SemanticsNode> elements(const std::string& surface) {
    return findElements(tree(surface), [](const ui::SemanticsNode&) { return true; });
  }
  [[nodiscard]] static std::vector<ui::SemanticsNode> withRole(
      ui::Role role, const std::string& surface = "main") {
    return findElements(tree(surface),
                        [role](const ui::SemanticsNode& node) { return node.role == role; });
  }
  [[nodiscard]] static std::optional<ui::SemanticsNode> element(
      const std::string& label, const std::string& surface = "main") {
    return findLabel(tree(surface), label);
  }
  [[nodiscard]] static std::optional<ui::SemanticsNode> element(
      ui::Role role, const std::string& label, const std::string& surface = "main") {
    return findElement(tree(surface), [&](const ui::SemanticsNode& node) {
      return node.role == role && node.label == label;
    });
  }
  /// Of the first element with the label; fails without one.
  [[nodiscard]] static ui::Rect frameOf(const std::string& label,
                                        const std::string& surface = "main") {
    const auto found = element(label, surface);
    EXPECT_TRUE(found) << "no \"" << label << "\" in " << surface;
    return found ? found->frame : ui::Rect{-1, -1, -1, -1};
  }

  /// One line for each drawing call of the window.
  [[nodiscard]] static std::vector<std::string> drawnLines(const std::string& surface = "main") {
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
  /// The number of drawn lines that contain `part`.
  [[nodiscard]] static std::ptrdiff_t drawn(const std::string& part,
                                            const std::string& surface = "main") {
    const std::vector<std::string> lines = drawnLines(surface);
    return std::ranges::count_if(
        lines, [&](const std::string& line) { return line.find(part) != std::string::npos; });
  }

  /// In global coordinates.
  void moveTo(CGPoint place) { hand.moveTo(place); }
  void pressAt(CGPoint place) {
    hand.moveTo(place);
    hand.pressButton();
  }
  void release() { hand.releaseButton(); }
  void click(CGPoint place) { hand.click(place); }
  /// Whether the key was handled.
  bool key(ui::Key name, bool shift = false) {
    return hand.key({name, {shift, false, false, false}, {}});
  }
  bool command(const std::string& character) {
    return hand.key({ui::Key::character, {false, false, false, true}, character});
  }

  Hand hand{machine};
};

}  // namespace orvane::desk
