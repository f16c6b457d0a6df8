// The lock, the permission and the menu. EffectCheckerControls.cpp has the other controls.
#include "desk/explore/EffectChecker.hpp"

#include <algorithm>
#include <utility>

#include "desk/explore/Language.hpp"
#include "desk/explore/Presses.hpp"
#include "desk/hand/FindControl.hpp"

namespace orvane::desk::explore {

namespace {

/// Requests for the permission within this time after an alert are dropped.
constexpr std::int64_t alertInterval = Clock::nanosecondsPerSecond;
/// The application looks at the permission once a second.
constexpr std::int64_t permissionInterval = Clock::nanosecondsPerSecond;
/// The guide appears 2 s after the alert.
constexpr std::int64_t guideDelay = 3 * Clock::nanosecondsPerSecond;
/// The guide closes this long after its success.
constexpr std::int64_t guideClosing = 3 * Clock::nanosecondsPerSecond / 2;

bool pressesPin(const Step& step) {
  return step.hasRun &&
         (step.line == "do toggleSelectedDisplayLock" || presses(step, &Labels::pin, "menu") ||
          presses(step, &Labels::pin, "main") || presses(step, &Labels::unpin, "main"));
}

bool pressesPrevent(const Step& step) {
  return step.hasRun &&
         (step.line == "do toggleHideDockOnAllDisplays" ||
          presses(step, &Labels::prevent, "menu") || presses(step, &Labels::prevent, "main") ||
          presses(step, &Labels::allow, "main"));
}

bool isRefusing(const Machine& machine) {
  return machine.eventTaps.refusesCreation() || machine.runLoop.refusesSources();
}

/// What the user may have chosen in a step.
struct Choices {
  bool hasLock;
  bool hasTarget;
  /// The language or the unlock key.
  bool hasSettings;
};

Choices choicesOf(const Step& step) {
  const std::string_view command = firstWord(step.operation);
  if (command == "defaults" || command == "click" || command == "key") {
    // The command writes the values itself, or may operate any control.
    return {true, true, true};
  }
  const bool isInPopUpMenu = step.operation.ends_with(" in menu") && !step.before.isStatusMenuOpen;
  return {.hasLock = pressesPin(step) || pressesPrevent(step) || step.line == "do toggleLock",
          .hasTarget = step.isUserAction(),
          .hasSettings = isInPopUpMenu || command == "pick" || command == "do"};
}

std::size_t elementCount(const Observation& observation) {
  std::size_t count = 0;
  for (const auto& [name, tree] : observation.trees) {
    count += elementsOf(tree).size();
  }
  return count;
}

/// Whether the guard runs, or starts when it can.
bool isOn(const Observation& observation) {
  return observation.isGuardRunning || observation.isGuardWaiting;
}

Violation missingGuard(const char* text) {
  return {"effect", text, "guard.running true"};
}

}  // namespace

bool EffectChecker::canRun(const Step& step, const DisplayConfiguration& configuration) const {
  const Observation& now = step.after;
  return now.isTrusted && !mayBeStale_ && !step.isStale && configuration.edge &&
         !configuration.forbiddenEdgePoints(now.stored.goal()).empty();
}

void EffectChecker::track(const Step& step) {
  if (step.isLaunch()) {
    *this = {};
  }
  const Observation& before = step.before;
  const Observation& after = step.after;
  if (elementCount(before) != elementCount(after)) {
    elementsChangedAt_ = after.now;
  }
  const bool hasSwitchedOff = before.stored.wants && !after.stored.wants && step.isUserAction();
  const bool isAsking = before.shows("alert") || after.shows("alert");
  if (isAsking || (askedAt_ && (before.isGuideOpen || after.isGuideOpen))) {
    askedAt_ = after.now;
  }
  if (hasSwitchedOff && !isAsking) {
    askedAt_.reset();
  }
  mayBeStale_ = isRefusing(step.machine) || (mayBeStale_ && after.snapshot.isPermissionStale);
  if (!after.isTrusted) {
    permissionMissingSince_ = permissionMissingSince_.value_or(after.now);
    permissionReturnedAt_.reset();
  } else if (permissionMissingSince_) {
    if (after.now - *permissionMissingSince_ > permissionInterval) {
      permissionReturnedAt_ = after.now;
      mustBeOnSince_ = after.now;
    }
    permissionMissingSince_.reset();
  }
  const bool hasGoal = after.stored.prevents || after.stored.selected;
  if (isOn(after) || !after.isTrusted || !after.stored.wants || !hasGoal || mayBeStale_) {
    mustBeOnSince_.reset();
  }
}

std::optional<Violation> EffectChecker::check(const Step& step,
                                              const DisplayConfiguration& configuration) {
  track(step);
  if (Check found = firstOf([&] { return checkStaleness(step); },
                            [&] { return checkLaunch(step, configuration); },
                            [&] { return checkReturnOfPermission(step, configuration); },
                            [&] { return checkWait(step, configuration); },
                            [&] { return checkStoredChoices(step, configuration); },
                            [&] { return checkAlert(step); }, [&] { return checkWindows(step); })) {
    return found;
  }
  if (!step.isWithinRun()) {
    return std::nullopt;
  }
  return firstOf([&] { return checkPinSwitch(step); }, [&] { return checkPreventSwitch(step); },
                 [&] { return checkStop(step, configuration); }, [&] { return checkRequest(step); },
                 [&] { return checkGrant(step); }, [&] { return checkLinks(step); },
                 [&] { return checkPickers(step); }, [&] { return checkLoginSwitch(step); },
                 [&] { return checkMenuSwitches(step); }, [&] { return checkFocus(step); },
                 [&] { return checkCards(step, configuration); }, [&] { return checkGuide(step); },
                 [&] { return checkMenu(step, configuration); });
}

bool EffectChecker::mayBeGranted(const Step& step) const {
  return askedAt_ && step.before.now - *askedAt_ <= guideDelay;
}

EffectChecker::Check EffectChecker::checkStaleness(const Step& step) const {
  if (!step.after.snapshot.isPermissionStale) {
    return std::nullopt;
  }
  if (!mayBeStale_) {
    return Violation{"permission", "it counts as stale although the system refused no tap"};
  }
  const bool isRetried = step.hasRun && (pressesPin(step) || pressesPrevent(step) ||
                                         presses(step, &Labels::accessibilitySettings, "settings"));
  return isRetried && step.after.isTrusted && !isRefusing(step.machine)
             ? Check(Violation{"permission", "it is stale after the user's next attempt"})
             : std::nullopt;
}

EffectChecker::Check EffectChecker::checkLaunch(const Step& step,
                                                const DisplayConfiguration& configuration) const {
  if (step.isLaunch() && step.after.stored.wants && canRun(step, configuration) &&
      !step.after.isGuardRunning) {
    return missingGuard("the launch did not restore the lock");
  }
  return std::nullopt;
}

EffectChecker::Check EffectChecker::checkReturnOfPermission(
    const Step& step, const DisplayConfiguration& configuration) {
  // A guard that shuts itself off in the step has come back.
  const bool isBack = step.after.isGuardRunning || step.filter.hasShutOff;
  if (!step.after.isLaunched || isBack || !step.after.stored.wants ||
      !canRun(step, configuration)) {
    permissionReturnedAt_.reset();
  }
  if (permissionReturnedAt_ && step.after.now - *permissionReturnedAt_ > permissionInterval) {
    return missingGuard("the lock did not come back with the permission");
  }
  return mustBeOnSince_ && step.after.now - *mustBeOnSince_ > permissionInterval
             ? Check(Violation{"effect", "the guard neither runs nor waits for its display",
                               "guard.observing true"})
             : std::nullopt;
}

EffectChecker::Check EffectChecker::checkWait(const Step& step,
                                              const DisplayConfiguration& configuration) {
  const Observation& after = step.after;
  const GuardSnapshot& guard = after.snapshot.guard;
  const GuardGoal goal{guard.blocksAllDisplays, guard.lockedDisplayIdentifier};
  const bool hasEdges = configuration.edge && !configuration.forbiddenEdgePoints(goal).empty();
  const bool canStart = after.stored.wants && canRun(step, configuration);
  // A guard that pauses although its edges stay has shut itself off, or was refused a tap. It keeps
  // them while the Dock's edge is unknown.
  const bool hasPaused = step.before.isGuardRunning && after.isGuardWaiting &&
                         (configuration.edge ? hasEdges : !step.wasNotified);
  if (std::exchange(edge_, configuration.edge) != configuration.edge) {
    edgeChangedAt_ = after.now;
  }
  const bool mayEnd = !after.isLaunched || step.wasNotified || step.isUserAction() ||
                      step.before.isTrusted != after.isTrusted || mayBeGranted(step) ||
                      step.before.now - edgeChangedAt_ <= permissionInterval;
  if (mustRest_ && !mayEnd && after.isGuardRunning && after.isTapEnabled) {
    return Violation{"guard", "it runs again after it shut itself off", "guard.running false"};
  }
  const bool hasShutOff = step.filter.hasShutOff || hasPaused;
  // The Dock may come up when the guard lets go, which changes the displays' visible frames.
  mustRest_ =
      (mustRest_ && !mayEnd) || (hasShutOff && !step.wasNotified && !isRefusing(step.machine));
  mayWait_ = (mayWait_ && after.isGuardWaiting && !step.wasNotified) || hasShutOff;
  if (step.before.isGuardWaiting && after.isGuardWaiting && step.wasNotified && canStart &&
      hasEdges && !hasShutOff && !after.isChangingTogether) {
    return missingGuard("the guard did not start when it was notified of the displays");
  }
  if (!after.isGuardWaiting || !canStart || mayWait_ || after.isChangingTogether) {
    canStartSince_.reset();
    return std::nullopt;
  }
  canStartSince_ = canStartSince_.value_or(after.now);
  return after.now - *canStartSince_ > permissionInterval
             ? Check(missingGuard("the guard waits although it can start"))
             : std::nullopt;
}

EffectChecker::Check EffectChecker::checkStop(const Step& step,
                                              const DisplayConfiguration& configuration) const {
  const bool hasStopped = isOn(step.before) && !isOn(step.after);
  // The choice of a display that is away stops the guard, and so does a lost permission.
  const bool mayStop = step.isUserAction() || !step.before.isTrusted || !step.after.isTrusted ||
                       mayBeStale_ || step.isStale;
  return hasStopped && step.after.stored.wants && (!mayStop || canRun(step, configuration))
             ? Check(missingGuard("the guard stopped although the lock is on"))
             : std::nullopt;
}

EffectChecker::Check EffectChecker::checkRequest(const Step& step) {
  const Observation& before = step.before;
  const Observation& after = step.after;
  const bool canAsk = !before.isTrusted && !before.isModal && !before.isGuardRunning &&
                      before.stored.selected && step.hasRun &&
                      (!lastAlertAt_ || before.now - *lastAlertAt_ >= alertInterval);
  if (canAsk && (pressesPin(step) || pressesPrevent(step)) && !after.isModal) {
    return Violation{"effect", "a lock without the permission did not request it"};
  }
  if (step.hasRun && presses(step, &Labels::openPrivacySettings, "alert")) {
    guideIsDueSince_ = after.now;
  }
  if (after.isGuideOpen || after.isQueueHeld || after.isTrusted) {
    guideIsDueSince_.reset();
  }
  return guideIsDueSince_ && after.now - *guideIsDueSince_ > guideDelay
             ? Check(Violation{"guide", "it did not appear after the alert", "guide.visible true"})
             : std::nullopt;
}

EffectChecker::Check EffectChecker::checkGrant(const Step& step) {
  const Observation& before = step.before;
  const Observation& after = step.after;
  const bool isRequest = pressesPin(step) || pressesPrevent(step);
  // A guide that the user closes looks at the permission once more.
  const bool isLastLook =
      before.isTrusted && before.isGuideOpen && step.hasRun &&
      (presses(step, &Labels::close, "guide") || presses(step, &Labels::done, "guide"));
  const bool leadsOn = isLastLook || presses(step, &Labels::openPrivacySettings, "alert") ||
                       step.operation.ends_with(" in system") || step.line == "drop icon";
  // An earlier request may have a guide that is open or due, and succeeds first.
  const bool isFirst = !lastDialogueAt_ || before.now - *lastDialogueAt_ > guideDelay;
  if (isRequest && isFirst && !before.isModal && after.isModal && before.stored.selected) {
    requestedPrevention_ = pressesPrevent(step);
  } else if (step.isUserAction() && !leadsOn) {
    requestedPrevention_.reset();
  }
  if (before.isModal || after.isModal || before.isGuideOpen || after.isGuideOpen) {
    lastDialogueAt_ = after.now;
  }
  const bool hasSucceeded = before.guideState != PermissionGuideState::success &&
                            after.guideState == PermissionGuideState::success;
  if (!hasSucceeded && !isLastLook) {
    return std::nullopt;
  }
  const std::optional<bool> prevents = std::exchange(requestedPrevention_, std::nullopt);
  if (!prevents || (after.stored.wants && after.stored.prevents == *prevents)) {
    return std::nullopt;
  }
  return Violation{"effect", "the granted permission did not switch on the requested lock",
                   "model.hidesDockOnAllDisplays " + std::string(*prevents ? "true" : "false")};
}

EffectChecker::Check EffectChecker::checkAlert(const Step& step) {
  if (step.before.isModal || !step.after.isModal) {
    return std::nullopt;
  }
  const bool isTooSoon = lastAlertAt_ && step.after.now - *lastAlertAt_ < alertInterval;
  lastAlertAt_ = step.after.now;
  if (!step.isUserAction()) {
    return Violation{"alert", "it appeared without a request"};
  }
  return isTooSoon ? Check(Violation{"alert", "it appeared twice within a second"}) : std::nullopt;
}

EffectChecker::Check EffectChecker::checkPinSwitch(const Step& step) const {
  if (!pressesPin(step)) {
    return std::nullopt;
  }
  const Observation& before = step.before;
  const Stored& stored = step.after.stored;
  if (before.isGuardRunning && !before.stored.prevents) {
    return stored.wants ? Check(Violation{"effect", "the Dock is still pinned"}) : std::nullopt;
  }
  if (stored.prevents) {
    return Violation{"effect", "pinning did not end the mode that prevents",
                     "defaults.hidesDockOnAllDisplays false"};
  }
  if (before.isTrusted && before.hasPermission && stored.selected && !stored.wants) {
    return Violation{"effect", "the Dock is not pinned", "defaults.isOrvaneEnabled true"};
  }
  return std::nullopt;
}

EffectChecker::Check EffectChecker::checkPreventSwitch(const Step& step) const {
  if (!pressesPrevent(step)) {
    return std::nullopt;
  }
  const Observation& before = step.before;
  const Stored& stored = step.after.stored;
  if (before.isGuardRunning && before.stored.prevents) {
    return stored.wants || stored.prevents
               ? Check(Violation{"effect", "the Dock is still prevented from popping up"})
               : std::nullopt;
  }
  if (before.isTrusted && before.hasPermission && !(stored.wants && stored.prevents)) {
    return Violation{"effect", "the Dock is not prevented from popping up",
                     "defaults.hidesDockOnAllDisplays true"};
  }
  return std::nullopt;
}

EffectChecker::Check EffectChecker::checkStoredChoices(
    const Step& step, const DisplayConfiguration& configuration) const {
  const Stored& was = step.before.stored;
  const Stored& is = step.after.stored;
  const Choices chosen = choicesOf(step);
  if (!chosen.hasSettings && (was.language != is.language || was.modifier != is.modifier)) {
    return Violation{"choice", "the language or unlock key was stored without a user action"};
  }
  if (!chosen.hasLock && !mayBeGranted(step) &&
      (was.wants != is.wants || was.prevents != is.prevents)) {
    return Violation{"choice", "the lock or mode was stored without a user action",
                     "defaults.isOrvaneEnabled " + std::string(was.wants ? "true" : "false")};
  }
  const bool isFirstChoice = step.isLaunch() || step.line == "menu open" || step.line == "reopen";
  if (isFirstChoice && !was.selected && is.selected && !step.isStale &&
      !configuration.screens.empty()) {
    const auto main = std::ranges::find_if(configuration.screens,
                                           [](const auto& screen) { return screen.isMain; });
    const auto& screens = configuration.screens;
    const auto& expected = main != screens.end() ? *main : screens.front();
    if (expected.names.front() != *is.selected) {
      return Violation{"choice", "the first target is not the main display"};
    }
  }
  if (!chosen.hasTarget && was.selected && was.selected != is.selected) {
    // A display that was stored by an alias may be stored again by its preferred identifier.
    const auto* const screen = configuration.named(*was.selected);
    const bool isAlias = is.selected && screen != nullptr && screen->isNamed(*is.selected);
    if (!isAlias && !step.isStale) {
      return Violation{"choice", "the target was stored without a user action"};
    }
  }
  return std::nullopt;
}

EffectChecker::Check EffectChecker::checkGuide(const Step& step) const {
  const bool hasClosed = step.before.isGuideOpen && !step.after.isGuideOpen;
  const bool mayHaveSucceeded =
      step.after.isTrusted && step.after.now - step.before.now >= guideClosing;
  const bool mayClose = step.before.guideState == PermissionGuideState::success ||
                        mayHaveSucceeded || step.isUserAction();
  return hasClosed && !mayClose ? Check(Violation{"guide", "it closed before its success"})
                                : std::nullopt;
}

EffectChecker::Check EffectChecker::checkMenu(const Step& step,
                                              const DisplayConfiguration& configuration) const {
  const OrvaneSnapshot& model = step.after.snapshot;
  const auto menu = step.after.trees.find("menu");
  const bool hasOpened = step.line == "menu open" && step.after.isStatusMenuOpen &&
                         !step.before.isStatusMenuOpen && menu != step.after.trees.end();
  if (!hasOpened) {
    return std::nullopt;
  }
  const appkit::LoginItem::Status login = step.machine.loginItem.status;
  if (model.launchAtLoginEnabled != (login == appkit::LoginItem::Status::enabled) ||
      model.launchAtLoginRequiresApproval !=
          (login == appkit::LoginItem::Status::requiresApproval)) {
    return Violation{"login", "the login item's status was not read"};
  }
  const std::vector<ui::SemanticsNode> rows = findControls(menu->second);
  const std::optional<std::string>& target = step.after.stored.selected;
  const auto* const chosen = target ? configuration.named(*target) : nullptr;
  for (std::size_t index = 0; index < configuration.screens.size(); ++index) {
    // Displays may share a UUID; the guard then spares the first of them.
    const bool isChosen =
        chosen != nullptr && chosen->names.front() == configuration.screens[index].names.front();
    if (menuSwitches + index >= rows.size() || rows[menuSwitches + index].isSelected != isChosen) {
      return Violation{"menu", "it does not mark the chosen display"};
    }
    const std::string& title = rows[menuSwitches + index].label;
    const bool isMain =
        title.find("(Main)") != std::string::npos || title.find("（主要）") != std::string::npos;
    if (isMain != configuration.screens[index].isMain) {
      return Violation{"menu", "it marks another display as the main one"};
    }
  }
  return std::nullopt;
}

}  // namespace orvane::desk::explore
