// TapWatch looks after the guard's event tap where a real session depends on it. The window server
// waits for an active tap with every movement of the pointer, so a tap that may no longer answer
// must not stay; and a tap that the system has switched off, as over sleep or at a change of the
// user, must not stay off.
#pragma once

#include <functional>

#include "Orvane/base/Lifetime.hpp"
#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/platform/appkit/Timer.hpp"

namespace orvane {

/// Main thread only.
class TapWatch {
 public:
  /// A tap outlives its permission by no more than this.
  static constexpr double intervalSeconds = 1.0;

  /// Looks once in every interval from now on, also while a menu is open or a modal session runs.
  /// `model` is asked at each look, so that the model need not be there yet.
  explicit TapWatch(std::function<OrvaneModel&()> model);

 private:
  void look();
  void permissionIsMissing(OrvaneModel& model);
  void permissionIsThere(OrvaneModel& model);
  void reviveTap();

  std::function<OrvaneModel&()> model_;
  /// The guard was stopped here and nowhere else, so it comes back with the permission.
  bool hasStoppedGuard_ = false;
  bool isRevivalUnderWay_ = false;
  appkit::Timer timer_;
  Lifetime lifetime_;
};

}  // namespace orvane
