// OrvaneModel is the one observable state object: the attached displays, the user's choices, the
// permission, and the guard that it starts and stops. Every user action is a call on it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Orvane/base/Lifetime.hpp"
#include "Orvane/base/Published.hpp"
#include "Orvane/base/Signal.hpp"
#include "Orvane/geometry/DisplaySnapshot.hpp"
#include "Orvane/guard/DockMouseGuard.hpp"
#include "Orvane/guard/OrvaneModifier.hpp"
#include "Orvane/model/OrvaneLanguage.hpp"
#include "Orvane/model/OrvaneMode.hpp"
#include "Orvane/model/OrvaneStatus.hpp"
#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/NotificationCenter.hpp"

namespace orvane {

/// Main thread only. The model does not store whether the guard is running; isGuardRunning() asks
/// the guard.
class OrvaneModel {
 public:
  /// Reads the settings and starts observing the system; neither lists displays nor starts the
  /// guard.
  OrvaneModel();
  OrvaneModel(const OrvaneModel&) = delete;
  OrvaneModel& operator=(const OrvaneModel&) = delete;
  ~OrvaneModel();

  [[nodiscard]] const Published<std::vector<DisplaySnapshot>>& displays() const {
    return displays_;
  }
  /// The target of pinning, compared with each display's matching identifiers.
  [[nodiscard]] const Published<std::optional<std::string>>& selectedDisplayID() const {
    return selectedDisplayID_;
  }
  [[nodiscard]] const Published<bool>& hasAccessibilityPermission() const {
    return hasAccessibilityPermission_;
  }
  [[nodiscard]] const Published<bool>& isTemporarilyUnlocked() const {
    return isTemporarilyUnlocked_;
  }
  /// Never assigned: always none.
  [[nodiscard]] const Published<std::optional<bool>>& lastRestoreSucceeded() const {
    return lastRestoreSucceeded_;
  }
  /// When displays were last refreshed, or the guard last started, stopped or reported; seconds by
  /// the calendar clock.
  [[nodiscard]] const Published<CFAbsoluteTime>& lastCheckedAt() const { return lastCheckedAt_; }
  [[nodiscard]] const Published<OrvaneLanguage>& appLanguage() const { return appLanguage_; }
  [[nodiscard]] const Published<OrvaneModifier>& temporaryUnlockModifier() const {
    return temporaryUnlockModifier_;
  }
  [[nodiscard]] const Published<bool>& hidesDockOnAllDisplays() const {
    return hidesDockOnAllDisplays_;
  }
  [[nodiscard]] const Published<bool>& launchAtLoginEnabled() const {
    return launchAtLoginEnabled_;
  }
  [[nodiscard]] const Published<bool>& launchAtLoginRequiresApproval() const {
    return launchAtLoginRequiresApproval_;
  }
  /// The platform's error text of the last failure; none after a success.
  [[nodiscard]] const Published<std::optional<std::string>>& launchAtLoginErrorMessage() const {
    return launchAtLoginErrorMessage_;
  }

  /// Notifies after each change of a published property other than `lastCheckedAt`, which no view
  /// shows, and when the guard has started or stopped running.
  [[nodiscard]] const Signal& changes() const { return changes_; }
  /// Notifies on the main queue when the guard has started or stopped running.
  [[nodiscard]] const Signal& guardChanges() const { return guardChanges_; }

  [[nodiscard]] const DockMouseGuard& guardService() const { return guardService_; }
  [[nodiscard]] DockMouseGuard& guardService() { return guardService_; }
  /// The guard is running when it holds an event tap.
  [[nodiscard]] bool isGuardRunning() const { return guardService_.isRunning(); }
  [[nodiscard]] OrvaneMode mode() const;
  /// Computed at each call, from the Dock's present edge.
  [[nodiscard]] OrvaneStatus status() const;
  /// The attached display that `selectedDisplayID` names; none when it names none.
  [[nodiscard]] std::optional<DisplaySnapshot> selectedDisplay() const;
  /// The text in the interface language.
  [[nodiscard]] std::string localized(std::string_view english, std::string_view chinese) const {
    return appLanguage_.value().localized(english, chinese);
  }

  /// Stores the choice and restarts a running guard if the permission is granted.
  void setHidesDockOnAllDisplays(bool hides);
  /// Stores the choice and restarts a running guard.
  void setTemporaryUnlockModifier(OrvaneModifier modifier);
  /// Stores the choice and re-reads the displays, whose names depend on it.
  void setAppLanguage(OrvaneLanguage language);
  /// Asks the system whether the permission is granted, and returns its answer. A stale permission
  /// counts as missing all the same.
  bool refreshPermission();
  /// To be called when the system reports the permission as granted and yet refuses the tap, as it
  /// does after the application was removed from its list. The permission then counts as missing
  /// until the user requests it or the guard, or until the refresh after `clearStalePermission`.
  void markPermissionStale();
  void clearStalePermission() { isPermissionStale_ = false; }
  [[nodiscard]] bool isPermissionStale() const { return isPermissionStale_; }

  void refreshDisplays();
  void selectDisplay(const std::string& id);
  void toggleLock();
  /// The switch "Pin Dock to a Display".
  void toggleSelectedDisplayLock();
  /// The switch "Prevent Dock Pop-Up".
  void toggleHideDockOnAllDisplays();
  /// To be called once at launch: restarts the guard if it was on when the application quit and can
  /// start.
  void restoreLockIfNeeded();
  /// Stops the guard; the stored setting that the user wants it on stays.
  void suspendGuard();
  /// Starts the guard if the user wants it on and it is not running. A guard whose target is not
  /// attached waits for it.
  void resumeGuard();
  /// To be called periodically while the guard runs or waits and the permission is granted.
  /// Restarts a guard that missed a change of the settings while the permission was away; else
  /// revives its tap.
  void reviveGuard();
  /// To be called periodically while the permission is granted: a guard that runs or waits follows
  /// the Dock to another edge.
  void followDock() { guardService_.followDock(); }
  /// Whether the guard could not be restored at launch because the permission was missing; false
  /// again once it starts.
  [[nodiscard]] bool isRestoreBlocked() const { return isRestoreBlocked_; }

  void refreshLaunchAtLoginStatus();
  /// Registers nothing while the application is in a temporary location.
  void setLaunchAtLoginEnabled(bool enabled);
  /// Whether the user requested the login item from a temporary location and it does not exist.
  [[nodiscard]] bool isLaunchAtLoginBlocked() const {
    return wasLaunchAtLoginBlocked_.value() && !launchAtLoginEnabled_.value();
  }
  /// Whether the last change failed and the login item still differs from the user's request.
  [[nodiscard]] bool isLaunchAtLoginFailing() const {
    return launchAtLoginErrorMessage_.value() &&
           launchAtLoginEnabled_.value() != wantsLaunchAtLogin_.value();
  }

  void openAccessibilitySettings();
  /// Opens the settings page where the user approves and removes login items.
  void openLoginItemsSettings();
  void openPrivacyPolicy();
  void openSupportEmail();

 private:
  void installGuardCallbacks();
  void observeScreenChanges();
  void handleScreenChange();

  [[nodiscard]] bool isTargetAttached() const;
  /// Prevent mode needs no target; pinning needs one, attached or not.
  [[nodiscard]] bool canStart() const;

  void startGuard();
  void startGuardForTheUser();
  void stopGuardForTheUser();
  void stopActiveLockIfNeeded();
  void restartGuardIfRunning();
  void requestAccessibilityForAllDisplayGuard();
  /// Requests the permission and then calls `start`, unless a later user action has started or
  /// stopped the guard by then.
  void requestPermission(std::function<void()> start);
  void setSelectedDisplayID(std::optional<std::string> id);
  void noteChecked();

  Signal changes_;
  Signal guardChanges_;
  Published<std::vector<DisplaySnapshot>> displays_;
  Published<std::optional<std::string>> selectedDisplayID_;
  Published<bool> hasAccessibilityPermission_;
  Published<bool> isTemporarilyUnlocked_;
  Published<std::optional<bool>> lastRestoreSucceeded_;
  Published<CFAbsoluteTime> lastCheckedAt_;
  bool isRestoreBlocked_ = false;
  bool isPermissionStale_ = false;
  /// User actions on the guard, including permission requests, are numbered. The last one
  /// determines the guard's state.
  std::uint64_t userActionCount_ = 0;
  std::uint64_t lastUserAction_ = 0;
  Published<OrvaneLanguage> appLanguage_;
  Published<OrvaneModifier> temporaryUnlockModifier_;
  Published<bool> hidesDockOnAllDisplays_;
  Published<bool> launchAtLoginEnabled_;
  Published<bool> launchAtLoginRequiresApproval_;
  Published<std::optional<std::string>> launchAtLoginErrorMessage_;
  Published<bool> wantsLaunchAtLogin_;
  Published<bool> wasLaunchAtLoginBlocked_;
  DockMouseGuard guardService_;
  std::optional<appkit::ObserverToken> screenObserver_;
  Lifetime lifetime_;
};

}  // namespace orvane
