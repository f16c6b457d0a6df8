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
  if (model_.isPermissionDoubted()) {
    // The change may have mended what the doubt was about.
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
  if (std::exchange(wasMissing_, false)) {
    resumeGuard();
  } else {
    reviveTap();
  }
}

void TapWatch::resumeGuard() {
  model_.resumeGuard();
  if (model_.guardService().isTapRefused()) {
    model_.doubtPermission();
  }
}

void TapWatch::reviveTap() {
  if (!model_.isGuardRunning()) {
    return;
  }
  model_.guardService().reviveTap();
  if (!model_.isGuardRunning()) {
    model_.doubtPermission();
  }
}

}  // namespace orvane
