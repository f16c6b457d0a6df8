// TapWatch synchronises the guard's event tap with the Accessibility permission. The window server
// waits for an active tap at every movement of the pointer, so a tap without the permission must be
// removed. When the permission returns, a guard that the user wants must resume. The same check has
// the guard follow a hidden Dock to another edge.
#pragma once

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/platform/appkit/NotificationCenter.hpp"
#include "Orvane/platform/appkit/Timer.hpp"

namespace orvane {

/// Main thread only.
class TapWatch {
 public:
  /// The longest time that a tap outlives its permission.
  static constexpr double intervalSeconds = 1.0;

  /// Starts checking once per interval, also while a menu is open or a modal session runs, and at
  /// each notification of changed permissions. `model` must outlive the watch.
  explicit TapWatch(OrvaneModel& model);
  TapWatch(const TapWatch&) = delete;
  TapWatch& operator=(const TapWatch&) = delete;
  ~TapWatch();

 private:
  void permissionsChanged();
  void check();
  /// Called when the system refuses the tap although it reports the permission as granted.
  void giveUp();

  OrvaneModel& model_;
  /// The permission was missing or stale at the last check, or at launch.
  bool wasMissing_;
  appkit::Timer timer_;
  appkit::ObserverToken permissionObserver_;
};

}  // namespace orvane
