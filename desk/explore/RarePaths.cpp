// Each rare state by what shows it.
#include "desk/explore/RarePaths.hpp"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <string_view>

namespace orvane::desk::explore {

namespace {

using Step = RarePaths::Step;

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

bool beginsRunning(const Step& step) {
  return step.before.isLaunched && step.after.isLaunched && !step.before.isGuardRunning &&
         step.after.isGuardRunning;
}

/// The guard goes on, without a tap: it follows the displays.
bool pauses(const Step& step) {
  return step.before.isGuardRunning && !step.after.isGuardRunning && step.after.isGuardWaiting;
}

bool isLaunch(const Step& step) {
  return !step.before.isLaunched && step.after.isLaunched;
}

bool isEnd(const Step& step) {
  return step.before.isLaunched && !step.after.isLaunched;
}

bool begins(const Step& step, std::string_view words) {
  return std::string_view(step.line).starts_with(words);
}

bool changesDisplays(const Step& step) {
  return begins(step, "display ");
}

bool isGuideIn(const Moment& moment, PermissionGuideState state) {
  return moment.isGuideOpen && moment.guideState == state;
}

constexpr Path paths[]{
    {"the guard pauses while unlocked",
     [](const Step& step) { return pauses(step) && step.before.isUnlocked; }},
    {"the guard is stopped while unlocked",
     [](const Step& step) {
       return step.before.isUnlocked && step.before.isGuardRunning && step.after.isLaunched &&
              !step.after.isGuardRunning && !step.after.isGuardWaiting;
     }},
    {"the permission goes while unlocked",
     [](const Step& step) { return isRevoked(step) && step.before.isUnlocked; }},
    {"an event between shut-off and clean-up",
     [](const Step& step) { return step.filter.hasMetDisabledTap && step.filter.hasMovedBack; }},
    {"a shut-off that the alert keeps waiting",
     [](const Step& step) {
       return step.after.isGuardRunning && !step.after.isTapEnabled && step.after.isQueueHeld &&
              step.after.tapCount > 0;
     }},
    {"a runaway shuts the guard off",
     [](const Step& step) {
       return pauses(step) && step.after.blockedCount >= step.before.blockedCount + 100;
     }},
    {"the guard is back after a shut-off, by the displays",
     [](const Step& step) { return beginsRunning(step) && changesDisplays(step); }},
    {"the system disables the tap too often",
     [](const Step& step) { return pauses(step) && begins(step, "tap disabled"); }},
    {"a tap that died without a word is enabled again",
     [](const Step& step) {
       return step.before.isGuardRunning && step.before.tapCount > 0 && !step.before.isTapEnabled &&
              step.after.isGuardRunning && step.after.isTapEnabled && begins(step, "advance");
     }},
    {"the tap is refused",
     [](const Step& step) {
       return step.machine.eventTaps.refusesCreation() && step.after.isDoubted;
     }},
    {"its source is refused",
     [](const Step& step) {
       return step.machine.runLoop.refusesSources() && step.after.isDoubted;
     }},
    {"a doubted permission is believed again",
     [](const Step& step) {
       return step.before.isDoubted && step.after.isLaunched && !step.after.isDoubted;
     }},
    {"the permission comes inside the alert",
     [](const Step& step) { return isGranted(step) && step.after.isModal; }},
    {"the permission goes inside the alert",
     [](const Step& step) { return isRevoked(step) && step.after.isModal; }},
    {"the permission comes while the guide polls",
     [](const Step& step) { return isGranted(step) && step.before.isGuidePolling; }},
    {"the permission comes after the time-out",
     [](const Step& step) {
       return isGuideIn(step.before, PermissionGuideState::timeout) &&
              isGuideIn(step.after, PermissionGuideState::success);
     }},
    {"the permission goes after the guide's success",
     [](const Step& step) {
       return isRevoked(step) && isGuideIn(step.before, PermissionGuideState::success);
     }},
    {"the permission comes with the menu open",
     [](const Step& step) { return isGranted(step) && step.before.isStatusMenuOpen; }},
    {"the permission goes with the menu open and the guard running",
     [](const Step& step) {
       return isRevoked(step) && step.before.isStatusMenuOpen && step.before.isGuardRunning;
     }},
    {"the guard starts under the guide",
     [](const Step& step) { return beginsRunning(step) && step.after.isGuideOpen; }},
    {"the guard starts by itself when the permission is back",
     [](const Step& step) { return beginsRunning(step) && isGranted(step); }},
    {"the target goes while pinned",
     [](const Step& step) {
       return pauses(step) && changesDisplays(step) && step.after.displayCount > 0 &&
              !step.after.stored.prevents;
     }},
    {"the last display goes while the guard runs",
     [](const Step& step) {
       return step.before.isGuardRunning && step.before.displayCount > 0 &&
              step.after.displayCount == 0;
     }},
    {"the target has another number and is guarded on",
     [](const Step& step) {
       return begins(step, "display renumber") && step.before.isGuardRunning &&
              step.after.isGuardRunning;
     }},
    {"an event meets displays that the guard does not know",
     [](const Step& step) {
       return step.isStale && step.before.isTapEnabled && step.filter.hasMovedBack;
     }},
    {"a display without a number is the target",
     [](const Step& step) {
       return step.after.stored.selected && step.after.stored.selected->starts_with("nil-");
     }},
    {"the lock is restored at launch",
     [](const Step& step) { return isLaunch(step) && step.after.isGuardRunning; }},
    {"the restore waits for the permission",
     [](const Step& step) { return isLaunch(step) && step.after.isRestoreBlocked; }},
    {"the restore that waited comes true",
     [](const Step& step) { return step.before.isRestoreBlocked && beginsRunning(step); }},
    {"a crash while the guard runs",
     [](const Step& step) {
       return isEnd(step) && begins(step, "crash") && step.before.isGuardRunning;
     }},
    {"an end inside the alert",
     [](const Step& step) { return isEnd(step) && step.before.isModal; }},
    {"an end with the menu open",
     [](const Step& step) { return isEnd(step) && step.before.isStatusMenuOpen; }},
    {"the user quits by the menu",
     [](const Step& step) { return isEnd(step) && begins(step, "press"); }},
    {"the user quits by the keyboard",
     [](const Step& step) { return isEnd(step) && begins(step, "key"); }},
    {"a minimised window is brought back",
     [](const Step& step) {
       return step.before.isMainMinimised && step.after.isLaunched && !step.after.isMainMinimised &&
              step.after.shows("main");
     }},
    {"both panels close together",
     [](const Step& step) {
       return step.before.shows("main") && step.before.shows("settings") && step.after.isLaunched &&
              !step.after.shows("main") && !step.after.shows("settings");
     }},
    {"the language changes under an open guide",
     [](const Step& step) {
       return step.before.isGuideOpen && step.after.isGuideOpen &&
              step.before.stored.language != step.after.stored.language;
     }},
    {"the alert comes while the menu is open",
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
       return step.after.isLaunched && step.application.model().isLaunchAtLoginFailing();
     }},
    {"the login item waits for approval",
     [](const Step& step) {
       return step.after.isLaunched &&
              step.application.model().launchAtLoginRequiresApproval().value();
     }},
    {"the Dock's edge is none that the guard knows",
     [](const Step& step) {
       return step.after.isLaunched && step.after.status == OrvaneStatus::needsCheck;
     }},
    {"the Dock moves while the guard runs",
     [](const Step& step) {
       return begins(step, "dock edge") && step.before.isGuardRunning && step.after.isGuardRunning;
     }},
    {"the request to prevent overtakes the request to pin",
     [](const Step& step) {
       return step.before.isGuideOpen && !step.before.stored.prevents &&
              step.after.stored.prevents && beginsRunning(step);
     }},
};

}  // namespace

RarePaths::RarePaths() : counts_(std::size(paths)) {}

void RarePaths::note(const Step& step) {
  for (std::size_t index = 0; index < counts_.size(); ++index) {
    counts_[index] += paths[index].isReached(step) ? 1 : 0;
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
