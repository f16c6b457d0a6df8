// EffectChecker checks that what users do has its effect, and that only they change what they
// chose: the switches, the windows, the permission's alert and guide, and the lock after a launch
// or after a return of the permission. It shares no code with the application.
#pragma once

#include <cstdint>
#include <optional>

#include "desk/explore/DisplayConfiguration.hpp"
#include "desk/explore/Step.hpp"
#include "desk/explore/Violation.hpp"

namespace orvane::desk::explore {

class EffectChecker {
 public:
  /// `configuration` is that of the machine after the step.
  [[nodiscard]] std::optional<Violation> check(const Step& step,
                                               const DisplayConfiguration& configuration);
  /// Whether the step stores what the user did not choose in it. A part of `check`, and all that
  /// there is to check when the application ends.
  [[nodiscard]] std::optional<Violation> checkStoredChoices(
      const Step& step, const DisplayConfiguration& configuration) const;

 private:
  using Check = std::optional<Violation>;

  void track(const Step& step);

  /// Whether a guard can start: the lock has displays to guard, and the system refuses nothing.
  [[nodiscard]] bool canRun(const Step& step, const DisplayConfiguration& configuration) const;

  /// Whether a request for the permission is open, whose grant starts the guard.
  [[nodiscard]] bool mayBeGranted(const Step& step) const;

  [[nodiscard]] Check checkStaleness(const Step& step) const;
  [[nodiscard]] Check checkLaunch(const Step& step,
                                  const DisplayConfiguration& configuration) const;
  [[nodiscard]] Check checkReturnOfPermission(const Step& step,
                                              const DisplayConfiguration& configuration);
  [[nodiscard]] Check checkWait(const Step& step, const DisplayConfiguration& configuration);
  [[nodiscard]] Check checkPinSwitch(const Step& step) const;
  [[nodiscard]] Check checkPreventSwitch(const Step& step) const;
  [[nodiscard]] Check checkStop(const Step& step, const DisplayConfiguration& configuration) const;
  [[nodiscard]] Check checkRequest(const Step& step);
  [[nodiscard]] Check checkWindows(const Step& step) const;
  [[nodiscard]] Check checkLinks(const Step& step) const;
  [[nodiscard]] Check checkPickers(const Step& step) const;
  [[nodiscard]] Check checkLoginSwitch(const Step& step) const;
  [[nodiscard]] Check checkMenuSwitches(const Step& step) const;
  [[nodiscard]] Check checkFocus(const Step& step) const;
  [[nodiscard]] Check checkCards(const Step& step, const DisplayConfiguration& configuration) const;
  [[nodiscard]] Check checkGrant(const Step& step);
  [[nodiscard]] Check checkAlert(const Step& step);
  [[nodiscard]] Check checkGuide(const Step& step) const;
  [[nodiscard]] Check checkMenu(const Step& step, const DisplayConfiguration& configuration) const;

  /// The system has refused a tap or its source since the permission was last good.
  bool mayBeStale_ = false;
  /// Whether the requested lock is to prevent; set from a request without the permission until the
  /// user does anything other than grant it.
  std::optional<bool> requestedPrevention_;
  /// The guard has shut itself off, and nothing has happened since that may start it again.
  bool mustRest_ = false;
  /// The waiting guard has shut itself off since it was last notified.
  bool mayWait_ = false;
  /// The Dock's edge, and since when it has been that, in nanoseconds. The application looks at it
  /// once a second.
  std::optional<DockEdge> edge_;
  std::int64_t edgeChangedAt_ = 0;
  /// All in nanoseconds by the machine's clock. The last time at which the alert or the guide was
  /// open for a request that the user made after the last choice.
  std::optional<std::int64_t> askedAt_;
  std::optional<std::int64_t> lastAlertAt_;
  /// The last time at which the alert or the guide was open.
  std::optional<std::int64_t> lastDialogueAt_;
  /// When the user chose to open System Settings, until the guide appears.
  std::optional<std::int64_t> guideIsDueSince_;
  std::optional<std::int64_t> canStartSince_;
  /// When elements were last added to or removed from a surface.
  std::int64_t elementsChangedAt_ = 0;
  std::optional<std::int64_t> permissionMissingSince_;
  std::optional<std::int64_t> permissionReturnedAt_;
  /// When the permission returned, until the guard runs or waits.
  std::optional<std::int64_t> mustBeOnSince_;
};

}  // namespace orvane::desk::explore
