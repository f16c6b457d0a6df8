// The guard's event path, run for each pointer movement of the session. It takes no lock, reads no
// settings and allocates only the tasks that it posts to the main queue: one for each change of the
// unlock key, at most one report a second, and one for a shut-off.
#include <algorithm>

#include "Orvane/guard/DockMouseGuard.hpp"
#include "Orvane/guard/DockMouseGuardMessages.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"

namespace orvane {

namespace {

/// The minimum time between two reports of blocked events.
constexpr double reportIntervalSeconds = 1.0;

}  // namespace

// Flattened, so that the calls made for every event are inlined where the linker sees them. Rare
// paths stay out of line, so that a movement outside every zone needs no stack frame.
[[gnu::flatten]] CGEventRef DockMouseGuard::eventTapCallback(CGEventType type, CGEventRef event) {
  if (type == kCGEventTapDisabledByTimeout || type == kCGEventTapDisabledByUserInput) {
    handleDisabledTap();
    return event;
  }
  const bool isUnlocked = overrideModifier_.isHeld(CGEventGetFlags(event));
  if (isUnlocked != isTemporarilyUnlocked_) {
    setTemporarilyUnlocked(isUnlocked);
  }
  if (isUnlocked) {
    return event;
  }
  const CGPoint location = CGEventGetLocation(event);
  for (const TriggerZone& zone : cachedTriggerZones_) {
    if (CGRectContainsPoint(zone.rect, location)) {
      CGEventSetLocation(
          event, CGPointMake(location.x + zone.nudgeVector.dx, location.y + zone.nudgeVector.dy));
      ++blockedCount_;
      recordBlockedEvent();
      break;
    }
  }
  return event;
}

[[gnu::noinline]] void DockMouseGuard::setTemporarilyUnlocked(bool value) {
  if (isTemporarilyUnlocked_ == value) {
    return;
  }
  isTemporarilyUnlocked_ = value;
  appkit::MainQueue::async(lifetime_.whileAlive([this, value] {
    if (onTemporaryUnlockChanged) {
      onTemporaryUnlockChanged(value);
    }
  }));
}

[[gnu::noinline]] void DockMouseGuard::recordBlockedEvent() {
  const double now = CACurrentMediaTime();
  recentBlockTimestamps_.record(now);
  if (recentBlockTimestamps_.isRunaway()) {
    disableEventTapForRapidBlocking();
    return;
  }
  if (now - lastBlockedEventLogAt_ >= reportIntervalSeconds) {
    lastBlockedEventLogAt_ = now;
    // The text is composed on the main queue, because choosing its language reads settings.
    appkit::MainQueue::async(lifetime_.whileAlive([this, count = blockedCount_] {
      if (onEvent) {
        onEvent(DockMouseGuardMessages::blocked(count));
      }
    }));
  }
}

void DockMouseGuard::disableEventTapForRapidBlocking() {
  shutOff();
}

[[gnu::noinline, gnu::cold]] void DockMouseGuard::handleDisabledTap() {
  if (!eventTap_ || isShutOff_) {
    return;
  }
  if (recordDisabling()) {
    shutOff();
  } else if (AXIsProcessTrusted()) {
    // Without the permission the tap would only stall the pointer again.
    CGEventTapEnable(eventTap_.get(), true);
  }
}

bool DockMouseGuard::recordDisabling() {
  std::shift_left(disabledAt_.begin(), disabledAt_.end(), 1);
  disabledAt_.back() = CACurrentMediaTime();
  return disabledAt_.back() - disabledAt_.front() <= disablingWindowSeconds;
}

[[gnu::noinline, gnu::cold]] void DockMouseGuard::shutOff() {
  if (eventTap_) {
    CGEventTapEnable(eventTap_.get(), false);
  }
  isShutOff_ = true;
  appkit::MainQueue::async(lifetime_.whileAlive([this] {
    forgetRecentBlocks();
    // A start in the meantime has created a new tap, which stays.
    finishShutOff();
    announceRunning();
  }));
}

}  // namespace orvane
