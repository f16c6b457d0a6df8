// WindowFocus knows whether the application is active and which window is key and which is main.
#pragma once

#include <memory>

#include "desk/windows/DeskWindow.hpp"

namespace orvane::desk {

class WindowServer;

/// The key window gets the keys. That of an application that is not active is remembered until it
/// becomes active; a panel that does not activate its application may be key nevertheless.
class WindowFocus {
 public:
  using Window = std::shared_ptr<DeskWindow>;

  explicit WindowFocus(WindowServer& server) : server_(server) {}

  [[nodiscard]] bool isActive() const { return isActive_; }
  void activate();
  /// Another program becomes active.
  void deactivate();
  /// The same, and the application's windows are hidden until it is active again.
  void hide();

  /// Nothing for a window that cannot become key, is not on the screen, or is kept back by a modal
  /// session.
  void makeKey(const Window& window);
  /// A click on the window: its program becomes active, it goes to the front and becomes key.
  void clicked(const Window& window);
  /// Its application's key window; null when there is none now.
  [[nodiscard]] Window keyWindow() const;
  [[nodiscard]] Window mainWindow() const;
  /// The window that keys go to, whosever it is; null when there is none.
  [[nodiscard]] Window keyReceiver() const;
  /// Some window has left the screen, or a modal session has begun or ended.
  void reconsider();
  void processEnded();

 private:
  [[nodiscard]] bool mayBeKey(const Window& window) const;
  void hideForDeactivation();

  WindowServer& server_;
  bool isActive_ = false;
  std::weak_ptr<DeskWindow> key_;
  std::weak_ptr<DeskWindow> main_;
  /// The window of a system program that was clicked last.
  std::weak_ptr<DeskWindow> systemKey_;
};

}  // namespace orvane::desk
