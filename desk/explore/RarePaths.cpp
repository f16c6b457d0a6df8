// The rare states, each with a predicate on a step.
#include "desk/explore/RarePaths.hpp"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <string_view>

namespace orvane::desk::explore {

namespace {

struct Path {
  const char* name;
  bool (*isReached)(const Step& step);
};

bool isRevoked(const Step& step) {
  return step.before.isTrusted && !step.after.isTrusted;
}

bool isGranted(const Step& step) {
  return !step.before.isTrusted && step.after.isTrusted;
}

bool starts(const Step& step) {
  return step.before.isLaunched && step.after.isLaunched && !step.before.isGuardRunning &&
         step.after.isGuardRunning;
}

/// The guard removes its tap but still observes the displays.
bool pauses(const Step& step) {
  return step.before.isGuardRunning && !step.after.isGuardRunning && step.after.isGuardWaiting;
}

/// The guard runs and moves its zones to another edge.
bool turns(const Step& step) {
  const auto& before = step.before.snapshot.guard;
  const auto& after = step.after.snapshot.guard;
  return before.isRunning && after.isRunning &&
         before.zones.front().nudgeVector.dx != after.zones.front().nudgeVector.dx;
}

bool startsWith(const Step& step, std::string_view prefix) {
  return std::string_view(step.line).starts_with(prefix);
}

bool changesDisplays(const Step& step) {
  return startsWith(step, "display ");
}

bool isGuideIn(const Observation& observation, PermissionGuideState state) {
  return observation.isGuideOpen && observation.guideState == state;
}

constexpr Path paths[]{
    {"the guard pauses while unlocked",
     [](const Step& step) { return pauses(step) && step.before.isUnlocked; }},
    {"the guard is stopped while unlocked",
     [](const Step& step) {
       return step.before.isUnlocked && step.before.isGuardRunning && step.after.isLaunched &&
              !step.after.isGuardRunning && !step.after.isGuardWaiting;
     }},
    {"the permission is revoked while unlocked",
     [](const Step& step) { return isRevoked(step) && step.before.isUnlocked; }},
    {"an event arrives between shut-off and clean-up",
     [](const Step& step) { return step.filter.hasMetDisabledTap && step.filter.hasShutOff; }},
    {"a shut-off waits for the alert to close",
     [](const Step& step) {
       return step.after.isGuardRunning && !step.after.isTapEnabled && step.after.isQueueHeld &&
              step.after.tapCount > 0;
     }},
    {"a runaway shuts the guard off",
     [](const Step& step) {
       return pauses(step) && step.after.blockedCount >= step.before.blockedCount + 100;
     }},
    {"a change of displays starts the guard",
     [](const Step& step) { return starts(step) && changesDisplays(step); }},
    {"the system disables the tap too often",
     [](const Step& step) { return pauses(step) && startsWith(step, "tap disabled"); }},
    {"a silently disabled tap is enabled again",
     [](const Step& step) {
       return step.before.isGuardRunning && step.before.tapCount > 0 && !step.before.isTapEnabled &&
              step.after.isGuardRunning && step.after.isTapEnabled && startsWith(step, "advance");
     }},
    {"the tap is refused",
     [](const Step& step) {
       return step.machine.eventTaps.refusesCreation() && step.after.snapshot.isPermissionStale;
     }},
    {"the source of the tap is refused",
     [](const Step& step) {
       return step.machine.runLoop.refusesSources() && step.after.snapshot.isPermissionStale;
     }},
    {"a stale permission is trusted again",
     [](const Step& step) {
       return step.before.snapshot.isPermissionStale && step.after.isLaunched &&
              !step.after.snapshot.isPermissionStale;
     }},
    {"the permission is granted during the alert",
     [](const Step& step) { return isGranted(step) && step.after.isModal; }},
    {"the permission is revoked during the alert",
     [](const Step& step) { return isRevoked(step) && step.after.isModal; }},
    {"the permission is granted while the guide polls",
     [](const Step& step) { return isGranted(step) && step.before.isGuidePolling; }},
    {"the permission is granted after the time-out",
     [](const Step& step) {
       return isGuideIn(step.before, PermissionGuideState::timeout) &&
              isGuideIn(step.after, PermissionGuideState::success);
     }},
    {"the permission is revoked after the guide's success",
     [](const Step& step) {
       return isRevoked(step) && isGuideIn(step.before, PermissionGuideState::success);
     }},
    {"the permission is granted with the menu open",
     [](const Step& step) { return isGranted(step) && step.before.isStatusMenuOpen; }},
    {"the permission is revoked with the menu open and the guard running",
     [](const Step& step) {
       return isRevoked(step) && step.before.isStatusMenuOpen && step.before.isGuardRunning;
     }},
    {"the guide starts anew during its success",
     [](const Step& step) {
       return isGuideIn(step.before, PermissionGuideState::success) &&
              isGuideIn(step.after, PermissionGuideState::checking);
     }},
    {"the user switches off while the guide polls",
     [](const Step& step) {
       return step.before.isGuidePolling && step.before.stored.wants && !step.after.stored.wants;
     }},
    {"the unlock key changes while the guard has yet to notice the lost permission",
     [](const Step& step) {
       return step.before.isGuardRunning && !step.before.isTrusted && step.after.isLaunched &&
              step.before.stored.modifier != step.after.stored.modifier;
     }},
    {"the guard starts while the guide is open",
     [](const Step& step) { return starts(step) && step.after.isGuideOpen; }},
    {"the guard restarts when the permission is granted again",
     [](const Step& step) { return starts(step) && isGranted(step); }},
    {"the target is detached while pinned",
     [](const Step& step) {
       return pauses(step) && changesDisplays(step) && step.after.displayCount > 0 &&
              !step.after.stored.prevents;
     }},
    {"the last display is detached while the guard runs",
     [](const Step& step) {
       return step.before.isGuardRunning && step.before.displayCount > 0 &&
              step.after.displayCount == 0;
     }},
    {"the guard keeps running when a display is renumbered",
     [](const Step& step) {
       return startsWith(step, "display renumber") && step.before.isGuardRunning &&
              step.after.isGuardRunning;
     }},
    {"an event arrives before the guard is notified of changed displays",
     [](const Step& step) {
       return step.isStale && step.before.isTapEnabled && step.filter.hasMovedBack;
     }},
    {"a display without a number is the target",
     [](const Step& step) {
       return step.after.stored.selected && step.after.stored.selected->starts_with("nil-");
     }},
    {"the lock is restored at launch",
     [](const Step& step) { return step.isLaunch() && step.after.isGuardRunning; }},
    {"the restore waits for the permission",
     [](const Step& step) { return step.isLaunch() && step.after.snapshot.isRestoreBlocked; }},
    {"a waiting restore succeeds",
     [](const Step& step) { return step.before.snapshot.isRestoreBlocked && starts(step); }},
    {"a crash while the guard runs",
     [](const Step& step) {
       return step.isEnd() && startsWith(step, "crash") && step.before.isGuardRunning;
     }},
    {"the application ends during the alert",
     [](const Step& step) { return step.isEnd() && step.before.isModal; }},
    {"the application ends with the menu open",
     [](const Step& step) { return step.isEnd() && step.before.isStatusMenuOpen; }},
    {"the user quits with the menu",
     [](const Step& step) { return step.isEnd() && startsWith(step, "press"); }},
    {"the user quits with the keyboard",
     [](const Step& step) { return step.isEnd() && startsWith(step, "key"); }},
    {"a minimised window is restored",
     [](const Step& step) {
       return step.before.isMainMinimised && step.after.isLaunched && !step.after.isMainMinimised &&
              step.after.shows("main");
     }},
    {"both panels close together",
     [](const Step& step) {
       return step.before.shows("main") && step.before.shows("settings") && step.after.isLaunched &&
              !step.after.shows("main") && !step.after.shows("settings");
     }},
    {"the language changes while the guide is open",
     [](const Step& step) {
       return step.before.isGuideOpen && step.after.isGuideOpen &&
              step.before.stored.language != step.after.stored.language;
     }},
    {"the alert opens while the menu is open",
     [](const Step& step) {
       return step.before.isStatusMenuOpen && !step.before.isModal && step.after.isModal;
     }},
    {"every link is refused",
     [](const Step& step) {
       const auto& links = step.machine.links.opened();
       return !links.empty() && links.back().isFile;
     }},
    {"the login item fails",
     [](const Step& step) {
       return step.after.isLaunched && step.after.snapshot.isLaunchAtLoginFailing;
     }},
    {"the login item waits for approval",
     [](const Step& step) {
       return step.after.isLaunched && step.after.snapshot.launchAtLoginRequiresApproval;
     }},
    {"the Dock's edge is invalid",
     [](const Step& step) {
       return step.after.isLaunched && step.after.status == OrvaneStatus::needsCheck;
     }},
    {"the Dock moves while the guard runs",
     [](const Step& step) { return startsWith(step, "dock edge") && turns(step); }},
    {"the guard follows a hidden Dock",
     [](const Step& step) { return startsWith(step, "advance") && turns(step); }},
    {"a request to prevent starts the guard while the guide is open",
     [](const Step& step) {
       return step.before.isGuideOpen && !step.before.stored.prevents &&
              step.after.stored.prevents && starts(step);
     }},
};

}  // namespace

RarePaths::RarePaths() : counts_(std::size(paths)), isIn_(std::size(paths)) {}

void RarePaths::note(const Step& step) {
  for (std::size_t index = 0; index < counts_.size(); ++index) {
    const bool wasIn = isIn_[index];
    isIn_[index] = paths[index].isReached(step);
    counts_[index] += isIn_[index] && !wasIn ? 1 : 0;
  }
}

void RarePaths::add(const RarePaths& other) {
  std::ranges::transform(counts_, other.counts_, counts_.begin(), std::plus<>());
}

std::vector<std::string> RarePaths::names() {
  std::vector<std::string> all;
  std::ranges::transform(paths, std::back_inserter(all), &Path::name);
  return all;
}

}  // namespace orvane::desk::explore
