// What each look finds, and what follows.
#include "Orvane/app/TapWatch.hpp"

#include <utility>

namespace orvane {

TapWatch::TapWatch(OrvaneModel& model)
    : model_(model),
      wasMissing_(!model.hasAccessibilityPermission().value()),
      timer_(appkit::Timer::repeating(intervalSeconds, appkit::RunLoopMode::common,
                                      [this] { look(); })),
      permissionObserver_(appkit::NotificationCenter::addObserver(
          appkit::NotificationName::accessibilityPermissionsDidChange,
          [this] { permissionsChanged(); })) {}

TapWatch::~TapWatch() {
  appkit::NotificationCenter::removeObserver(permissionObserver_);
}

void TapWatch::permissionsChanged() {
  if (model_.isPermissionDoubted() || model_.guardService().isTapRefused()) {
    // The system may grant now what it refused before.
    model_.believePermission();
    wasMissing_ = true;
  }
  look();
}

void TapWatch::look() {
  if (!model_.refreshPermission()) {
    wasMissing_ = true;
    model_.believePermission();
    if (model_.isGuardRunning()) {
      // Now, not by the main queue: it stands still in a modal session, and so would the pointer.
      model_.suspendGuard();
    }
    return;
  }
  if (model_.isPermissionDoubted()) {
    return;
  }
  if (const bool isBack = std::exchange(wasMissing_, false); model_.isGuardRunning()) {
    reviveTap();
  } else if (isBack) {
    resumeGuard();
  }
}

void TapWatch::resumeGuard() {
  model_.resumeGuard();
  if (model_.guardService().isTapRefused()) {
    giveUp();
  }
}

void TapWatch::reviveTap() {
  model_.reviveGuard();
  if (model_.guardService().isTapRefused()) {
    giveUp();
  }
}

void TapWatch::giveUp() {
  // A guard that went on waiting for the displays would ask for a tap at each change of them.
  model_.suspendGuard();
  model_.doubtPermission();
  wasMissing_ = true;
}

}  // namespace orvane
