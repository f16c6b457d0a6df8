// ModalSessions run windows modally: while one runs, the application's other windows hear nothing.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "desk/windows/DeskWindow.hpp"

namespace orvane::desk {

class WindowServer;

/// A session is a state of the run loop: its mode is that of modal panels, and the main queue is
/// held, because the task that began the session has not returned. Sessions nest.
class ModalSessions {
 public:
  using Window = std::shared_ptr<DeskWindow>;

  explicit ModalSessions(WindowServer& server) : server_(server) {}

  /// Shows the window and makes it key. `ended` is called after whatever stopped the session has
  /// returned.
  void run(const Window& window, std::function<void(int response)> ended);
  /// Stops the innermost session that has not been stopped; nothing without one.
  void stop(int response);
  [[nodiscard]] bool isRunning() const { return !sessions_.empty(); }
  /// The innermost session's; null without one.
  [[nodiscard]] Window window() const {
    return sessions_.empty() ? nullptr : sessions_.back().window;
  }
  /// Whether the innermost session is this window's.
  [[nodiscard]] bool isModal(const DeskWindow& window) const;
  /// Whether the innermost session keeps events from the window: it is the application's, and
  /// neither the session's window nor a child of it.
  [[nodiscard]] bool blocks(const DeskWindow& window) const;
  void processEnded();

 private:
  struct Session {
    Window window;
    std::function<void(int response)> ended;
    bool isStopped = false;
    int response = 0;
  };

  void finish();

  WindowServer& server_;
  std::vector<Session> sessions_;
};

}  // namespace orvane::desk
