// What is looked at once a second, and what follows.
#include "Orvane/model/TapWatch.hpp"

#include <utility>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"

namespace orvane {

TapWatch::TapWatch(std::function<OrvaneModel&()> model)
    : model_(std::move(model)),
      timer_(appkit::Timer::repeating(intervalSeconds, appkit::RunLoopMode::common,
                                      [this] { look(); })) {}

void TapWatch::look() {
  OrvaneModel& model = model_();
  if (AXIsProcessTrusted()) {
    permissionIsThere(model);
  } else {
    permissionIsMissing(model);
  }
}

void TapWatch::permissionIsMissing(OrvaneModel& model) {
  // At once, not by the main queue: that stands still in a modal session, and so would the pointer.
  if (model.isGuardRunning()) {
    model.suspendGuard();
    hasStoppedGuard_ = true;
  }
  model.setHasAccessibilityPermission(false);
}

void TapWatch::permissionIsThere(OrvaneModel& model) {
  model.setHasAccessibilityPermission(true);
  if (model.isGuardRunning()) {
    hasStoppedGuard_ = false;
    if (!CGEventTapIsEnabled(model.guardService().eventTap())) {
      reviveTap();
    }
  } else if (std::exchange(hasStoppedGuard_, false)) {
    // The user's wish is still stored, unless it has been taken back meanwhile.
    appkit::MainQueue::async(lifetime_.whileAlive([this] { model_().resumeGuard(); }));
  }
}

void TapWatch::reviveTap() {
  if (std::exchange(isRevivalUnderWay_, true)) {
    return;
  }
  // A guard that has switched itself off takes its tap down by the main queue. Behind that, a tap
  // that is still there and disabled is one that the system has disabled.
  appkit::MainQueue::async(lifetime_.whileAlive([this] {
    isRevivalUnderWay_ = false;
    const DockMouseGuard& guard = model_().guardService();
    if (guard.isRunning() && AXIsProcessTrusted() && !CGEventTapIsEnabled(guard.eventTap())) {
      CGEventTapEnable(guard.eventTap(), true);
    }
  }));
}

}  // namespace orvane
