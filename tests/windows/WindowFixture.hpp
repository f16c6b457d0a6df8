// WindowFixture gives each test a machine with two displays, a window server, and functions that
// operate mouse and keyboard.
#pragma once

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/platform/appkit/Window.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "desk/windows/Implementations.hpp"
#include "tests/support/HandFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane::desk {

/// Two displays of 1000 by 800 points side by side; the pointer is at rest in a corner of the
/// second one.
class WindowFixture : public HandFixture {
 protected:
  WindowFixture() {
    attach(machine, displayOf(1, "", {{0, 0}, {1000, 800}}), true);
    attach(machine, displayOf(2, "", {{1000, 0}, {1000, 800}}));
    machine.mouse.moveTo({1990, 400});
  }

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

 private:
  struct PlainStyle {
    ui::View operator()(const ui::ButtonConfiguration& configuration,
                        const ui::Environment&) const {
      return configuration.label;
    }
  };
};

}  // namespace orvane::desk
