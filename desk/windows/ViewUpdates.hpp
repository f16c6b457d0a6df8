// ViewUpdates updates changed views after the current task or handler, as the window system does at
// the end of an event.
#pragma once

#include <memory>
#include <vector>

namespace orvane::desk {

class HostedView;
class WindowServer;

class ViewUpdates {
 public:
  explicit ViewUpdates(WindowServer& server) : server_(server) {}

  /// To be called when the view has changed.
  void request(std::weak_ptr<HostedView> view);
  /// To be called when windows or menus have appeared, disappeared or moved.
  void request();
  /// The process has ended, and with it the scheduled update.
  void processEnded();

  /// The number of requests, each of which may have changed the screen.
  [[nodiscard]] long long changeCount() const { return changeCount_; }

 private:
  void flush();

  WindowServer& server_;
  std::vector<std::weak_ptr<HostedView>> views_;
  bool isScheduled_ = false;
  long long changeCount_ = 0;
};

}  // namespace orvane::desk
