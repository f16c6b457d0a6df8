// The checks and their effects.
#include "Orvane/app/TapWatch.hpp"

#include <utility>

namespace orvane {

TapWatch::TapWatch(OrvaneModel& model)
    : model_(model),
      wasMissing_(!model.hasAccessibilityPermission().value()),
      timer_(appkit::Timer::repeating(intervalSeconds, appkit::RunLoopMode::common,
                                      [this] { check(); })),
      permissionObserver_(appkit::NotificationCenter::addObserver(
          appkit::NotificationName::accessibilityPermissionsDidChange,
          [this] { permissionsChanged(); })) {}

TapWatch::~TapWatch() {
  appkit::NotificationCenter::removeObserver(permissionObserver_);
}

void TapWatch::permissionsChanged() {
  // The system may no longer refuse the tap.
  model_.clearStalePermission();
  check();
}

void TapWatch::check() {
  if (!model_.refreshPermission()) {
    wasMissing_ = true;
    model_.clearStalePermission();
    // Not on the main queue, which is suspended in a modal session: the pointer would freeze.
    model_.suspendGuard();
    return;
  }
  if (model_.isPermissionStale()) {
    return;
  }
  model_.followDock();
  const DockMouseGuard& guard = model_.guardService();
  const bool isOn = guard.isRunning() || guard.isWaiting();
  const bool isBack = std::exchange(wasMissing_, false);
  // A guard that is on was started after the permission returned, and may have shut itself off.
  if ((isBack && !isOn) || guard.wasTapRefused()) {
    model_.resumeGuard();
  } else if (isOn) {
    model_.reviveGuard();
  }
  if (guard.wasTapRefused()) {
    giveUp();
  }
}

void TapWatch::giveUp() {
  // A guard that waits for the displays would request a tap at each change of them.
  model_.suspendGuard();
  model_.markPermissionStale();
  wasMissing_ = true;
}

}  // namespace orvane
