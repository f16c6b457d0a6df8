// HandFixture gives each test a hand on its machine and access to the open windows.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "desk/hand/FindControl.hpp"
#include "desk/hand/Hand.hpp"
#include "desk/windows/WindowServer.hpp"
#include "tests/support/MachineFixture.hpp"
#include "tests/support/RecordingCanvas.hpp"

namespace orvane::desk {

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
  /// The semantics tree of a surface; empty if it is not open.
  [[nodiscard]] static ui::SemanticsNode tree(const std::string& surface) {
    return Surfaces(server()).tree(surface).value_or(ui::SemanticsNode{});
  }
  /// The drawing calls of a window, one line each.
  [[nodiscard]] static std::vector<std::string> drawnLines(const std::string& surface) {
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

  /// In global coordinates.
  void moveTo(CGPoint place) { hand.moveTo(place); }
  void release() { hand.releaseButton(); }
  void click(CGPoint place) { hand.click(place); }
  /// Returns whether the key was handled.
  bool key(ui::Key name, bool shift = false) {
    return hand.key({name, {shift, false, false, false}, {}});
  }
  bool command(const std::string& character) {
    return hand.key({ui::Key::character, {false, false, false, true}, character});
  }

  Hand hand{machine};
};

}  // namespace orvane::desk
