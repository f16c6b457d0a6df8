// Changes during one event lead to one update.
#include "desk/windows/ViewUpdates.hpp"

#include <utility>

#include "desk/windows/HostedView.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

void ViewUpdates::request(std::weak_ptr<HostedView> view) {
  views_.push_back(std::move(view));
  request();
}

void ViewUpdates::request() {
  ++changeCount_;
  if (!isScheduled_) {
    isScheduled_ = true;
    server_.machine().runLoop.afterCurrent([this] { flush(); });
  }
}

void ViewUpdates::processEnded() {
  isScheduled_ = false;
  if (!views_.empty()) {
    request();
  }
}

void ViewUpdates::flush() {
  isScheduled_ = false;
  server_.menus.layOut();
  for (const std::weak_ptr<HostedView>& view : std::exchange(views_, {})) {
    if (const auto kept = view.lock(); kept != nullptr && kept->isOnScreen()) {
      kept->update();
    }
  }
  server_.pointer.refresh();
}

}  // namespace orvane::desk
