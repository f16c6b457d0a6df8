// A stopped session ends when the handler that stopped it has returned, as AppKit's nested event
// loop does.
#include "desk/windows/ModalSessions.hpp"

#include <algorithm>
#include <utility>

#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

void ModalSessions::run(const Window& window, std::function<void(int response)> ended) {
  sessions_.push_back({window, std::move(ended)});
  RunLoop& runLoop = server_.machine().runLoop;
  server_.menus.close();
  runLoop.enterMode(RunLoop::Mode::modalPanel);
  runLoop.holdMainQueue();
  server_.pointer.cancelPress();
  server_.orderFront(window, true);
  server_.focus.makeKey(window);
  server_.focus.revalidate();
}

void ModalSessions::stop(int response) {
  const auto session = std::find_if(sessions_.rbegin(), sessions_.rend(),
                                    [](const Session& one) { return !one.isStopped; });
  if (session == sessions_.rend()) {
    return;
  }
  session->isStopped = true;
  session->response = response;
  server_.machine().runLoop.afterCurrent([this] { finish(); });
}

void ModalSessions::finish() {
  if (sessions_.empty() || !sessions_.back().isStopped) {
    return;
  }
  const Session session = std::move(sessions_.back());
  sessions_.pop_back();
  server_.menus.close();
  RunLoop& runLoop = server_.machine().runLoop;
  runLoop.leaveMode();
  runLoop.releaseMainQueue();
  server_.focus.revalidate();
  server_.updates.request();
  if (session.ended) {
    session.ended(session.response);
  }
}

bool ModalSessions::isModal(const DeskWindow& window) const {
  return !sessions_.empty() && sessions_.back().window.get() == &window;
}

bool ModalSessions::blocks(const DeskWindow& window) const {
  if (sessions_.empty() || window.owner == WindowOwner::system || isModal(window)) {
    return false;
  }
  const Window parent = window.parent.lock();
  return parent == nullptr || blocks(*parent);
}

void ModalSessions::processEnded() {
  // Destroying a callback may ask about sessions.
  const auto sessions = std::exchange(sessions_, {});
}

}  // namespace orvane::desk
