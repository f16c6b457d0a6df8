// The guard's event path: what happens to each pointer movement of the session. Nothing here locks,
// reads settings or reports, and nothing allocates but what is left on the main queue: a task for
// each change of the unlock key, for a report at most once a second, and for the shut-off.
#include <algorithm>

#include "Orvane/guard/DockMouseGuard.hpp"
#include "Orvane/guard/DockMouseGuardMessages.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"

namespace orvane {

namespace {

/// Blocks are reported no more often than this, in seconds.
constexpr double reportIntervalSeconds = 1.0;

}  // namespace

// Flattened: what it calls for every event is compiled into it where the linker sees it. What is
// rare is kept out, so that a movement outside every zone needs no room on the stack.
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
    // The text is made on the main queue, since choosing its language reads settings.
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
  if (isDisabledTooOften()) {
    shutOff();
  } else if (AXIsProcessTrusted()) {
    // Without the permission the tap would only hold up the pointer again.
    CGEventTapEnable(eventTap_.get(), true);
  }
}

bool DockMouseGuard::isDisabledTooOften() {
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
    // A start that came first has made a tap of its own, which stays.
    finishShutOff();
    announceRunning();
  }));
}

}  // namespace orvane
