// TapWatch keeps the guard's event tap and the Accessibility permission together. The window server
// waits for an active tap with every movement of the pointer, so a tap without the permission must
// not stay; and a guard that the user wants must come back with the permission.
#pragma once

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/platform/appkit/NotificationCenter.hpp"
#include "Orvane/platform/appkit/Timer.hpp"

namespace orvane {

/// Main thread only.
class TapWatch {
 public:
  /// A tap outlives its permission by no more than this.
  static constexpr double intervalSeconds = 1.0;

  /// Looks once in every interval from now on, also while a menu is open or a modal session runs,
  /// and whenever the system announces a change of the permissions. `model` must live at each look.
  explicit TapWatch(OrvaneModel& model);
  TapWatch(const TapWatch&) = delete;
  TapWatch& operator=(const TapWatch&) = delete;
  ~TapWatch();

 private:
  void permissionsChanged();
  void look();
  void resumeGuard();
  void reviveTap();
  /// The system refuses the tap although it says that the permission is there.
  void giveUp();

  OrvaneModel& model_;
  /// The permission was missing, or doubted, at the last look or at launch.
  bool wasMissing_;
  appkit::Timer timer_;
  appkit::ObserverToken permissionObserver_;
};

}  // namespace orvane
