// WindowFocus: whether the application is active, the key window and the main window.
#pragma once

#include <memory>

#include "desk/windows/DeskWindow.hpp"

namespace orvane::desk {

class WindowServer;

/// The key window receives key events. An inactive application keeps its key window for the next
/// activation; only a nonactivating panel is key while the application is inactive.
class WindowFocus {
 public:
  using Window = std::shared_ptr<DeskWindow>;

  explicit WindowFocus(WindowServer& server) : server_(server) {}

  [[nodiscard]] bool isActive() const { return isActive_; }
  void activate();
  /// Another program becomes active.
  void deactivate();
  /// Deactivates, and hides the application's windows until it is active again.
  void hide();

  /// Does nothing for a window that cannot become key, is not visible, or is blocked by a modal
  /// session.
  void makeKey(const Window& window);
  /// A click on the window: its program becomes active, it goes to the front and becomes key.
  void clicked(const Window& window);
  /// The application's key window; null when there is none.
  [[nodiscard]] Window keyWindow() const;
  [[nodiscard]] Window mainWindow() const;
  /// The window that receives key events, also of a system program; null when there is none.
  [[nodiscard]] Window keyReceiver() const;
  /// To be called when a window has disappeared, or a modal session has begun or ended: chooses
  /// another key window if necessary.
  void revalidate();
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
