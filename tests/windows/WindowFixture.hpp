// WindowFixture gives each test a machine with two displays, a window server, and functions that
// operate mouse and keyboard.
#pragma once

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/platform/appkit/Window.hpp"
#include "Orvane/ui/Button.hpp"
#include "Orvane/ui/ShapeView.hpp"
#include "Orvane/ui/Stack.hpp"
#include "Orvane/ui/Text.hpp"
#include "desk/windows/Implementations.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane::desk {

/// Two displays of 1000 by 800 points side by side; the pointer is at rest in a corner of the
/// second one.
class WindowFixture : public MachineFixture {
 protected:
  WindowFixture() {
    Display left;
    left.number = 1;
    left.frame = CGRectMake(0, 0, 1000, 800);
    Display right;
    right.number = 2;
    right.frame = CGRectMake(1000, 0, 1000, 800);
    EXPECT_FALSE(machine.displays.attach(left, true));
    EXPECT_FALSE(machine.displays.attach(right));
    machine.mouse.moveTo({1990, 400});
  }

  WindowServer& server() { return WindowServer::current(); }

  /// A window of 200 by 100 points at `origin`, in window-system coordinates. It can become key.
  static appkit::Window makeWindow(CGPoint origin, const std::string& name = "NSWindow",
                                   appkit::WindowKind kind = appkit::WindowKind::window,
                                   std::uint64_t styleMask = 0) {
    appkit::Window window(kind, CGRectMake(origin.x, origin.y, 200, 100), styleMask);
    window.setClassName(name);
    window.setCanBecomeKeyWindow(true);
    return window;
  }

  static appkit::HostingView hosting(const ui::View& view) {
    return appkit::HostingView([view](const ui::Environment&) { return view; });
  }
  /// A button that fills its host.
  static ui::View wideButton(const std::string& title, std::function<void()> action) {
    return ui::Button(std::move(action), ui::Text(title).frame({.maximumWidth = ui::infinity,
                                                                .maximumHeight = ui::infinity}))
        .style(PlainStyle{});
  }

  /// The names of all windows that are listed, back to front.
  std::string order() {
    std::string names;
    for (const auto& window : server().windows()) {
      names += (names.empty() ? "" : " ") + window->className;
    }
    return names;
  }

  void moveTo(CGPoint place) {
    machine.mouse.moveTo(place);
    machine.runDue();
  }
  void press(CGPoint place) {
    moveTo(place);
    machine.mouse.pressButton();
    machine.runDue();
  }
  void release() {
    machine.mouse.releaseButton();
    machine.runDue();
  }
  void click(CGPoint place) {
    press(place);
    release();
  }
  bool key(ui::Key name) {
    const bool isTaken = server().keyDown({name, {}, {}});
    machine.runDue();
    return isTaken;
  }
  bool command(const std::string& character) {
    const bool isTaken =
        server().keyDown({ui::Key::character, {false, false, false, true}, character});
    machine.runDue();
    return isTaken;
  }

 private:
  struct PlainStyle {
    ui::View body(const ui::ButtonConfiguration& configuration, const ui::Environment&) const {
      return configuration.label;
    }
  };
};

}  // namespace orvane::desk
