// ViewUpdates brings the views that have changed up to date once whatever changed them has
// returned, as the window system lays out and draws at the end of an event.
#pragma once

#include <memory>
#include <vector>

namespace orvane::desk {

class HostedView;
class WindowServer;

class ViewUpdates {
 public:
  explicit ViewUpdates(WindowServer& server) : server_(server) {}

  /// The view has changed.
  void request(std::weak_ptr<HostedView> view);
  /// Windows or menus came, went or moved: what is under the pointer may be something else.
  void request();
  /// The process has ended, and with it what was asked for.
  void processEnded();

  /// How often something on the screen may have become different.
  [[nodiscard]] long long changeCount() const { return changeCount_; }

 private:
  void flush();

  WindowServer& server_;
  std::vector<std::weak_ptr<HostedView>> views_;
  bool isScheduled_ = false;
  long long changeCount_ = 0;
};

}  // namespace orvane::desk
