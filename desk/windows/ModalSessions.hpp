// ModalSessions runs windows modally: only the modal window of the application receives events.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "desk/windows/DeskWindow.hpp"

namespace orvane::desk {

class WindowServer;

/// During a session the run loop is in the mode of modal panels, and the main queue is held,
/// because on a Mac the task that began the session has not returned. Sessions nest.
class ModalSessions {
 public:
  using Window = std::shared_ptr<DeskWindow>;

  explicit ModalSessions(WindowServer& server) : server_(server) {}

  /// Shows the window and makes it key. `ended` is called after the handler that stopped the
  /// session has returned.
  void run(const Window& window, std::function<void(int response)> ended);
  /// Stops the innermost session that is not stopped yet; does nothing without one.
  void stop(int response);
  [[nodiscard]] bool isRunning() const { return !sessions_.empty(); }
  /// The innermost session's window; null without one.
  [[nodiscard]] Window window() const {
    return sessions_.empty() ? nullptr : sessions_.back().window;
  }
  /// Whether it is the innermost session's window.
  [[nodiscard]] bool isModal(const DeskWindow& window) const;
  /// Whether the innermost session blocks the window's events: the window belongs to the
  /// application and is neither the session's window nor a child of it.
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
