// OrvaneModel's state: creation, setters, displays, links and launch at login. The actions that
// start and stop the guard are in OrvaneModelLock.cpp.
#include "Orvane/model/OrvaneModel.hpp"

#include <algorithm>
#include <utility>

#include "Orvane/geometry/DockUtils.hpp"
#include "Orvane/model/OrvaneLoginItem.hpp"
#include "Orvane/model/OrvaneProduct.hpp"
#include "Orvane/model/OrvaneSettings.hpp"
#include "Orvane/permission/OrvaneAccessibilityPermission.hpp"
#include "Orvane/platform/SystemSettingsLinks.hpp"
#include "Orvane/platform/appkit/LoginItem.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "Orvane/platform/appkit/Workspace.hpp"

namespace orvane {

using appkit::LoginItem;

OrvaneModel::OrvaneModel()
    : displays_({}, &changes_),
      selectedDisplayID_(OrvaneSettings::selectedDisplayID(), &changes_),
      hasAccessibilityPermission_(AXIsProcessTrusted() != 0, &changes_),
      isTemporarilyUnlocked_(false, &changes_),
      lastRestoreSucceeded_(std::nullopt, &changes_),
      lastCheckedAt_(CFAbsoluteTimeGetCurrent()),
      appLanguage_(OrvaneSettings::appLanguage(), &changes_),
      temporaryUnlockModifier_(OrvaneSettings::temporaryUnlockModifier(), &changes_),
      hidesDockOnAllDisplays_(OrvaneSettings::hidesDockOnAllDisplays(), &changes_),
      launchAtLoginEnabled_(LoginItem::status() == LoginItem::Status::enabled, &changes_),
      launchAtLoginRequiresApproval_(LoginItem::status() == LoginItem::Status::requiresApproval,
                                     &changes_),
      launchAtLoginErrorMessage_(std::nullopt, &changes_),
      wantsLaunchAtLogin_(false, &changes_),
      wasLaunchAtLoginBlocked_(false, &changes_) {
  installGuardCallbacks();
  observeScreenChanges();
}

OrvaneModel::~OrvaneModel() {
  if (screenObserver_) {
    appkit::NotificationCenter::removeObserver(*screenObserver_);
  }
}

void OrvaneModel::installGuardCallbacks() {
  guardService_.onEvent =
      lifetime_.whileAlive([this](const std::string& /*message*/) { noteChecked(); });
  guardService_.onTemporaryUnlockChanged =
      lifetime_.whileAlive([this](bool isUnlocked) { isTemporarilyUnlocked_.set(isUnlocked); });
  guardService_.onRunningChanged = lifetime_.whileAlive([this](bool /*isRunning*/) {
    guardChanges_.notify();
    changes_.notify();
  });
}

void OrvaneModel::observeScreenChanges() {
  screenObserver_ = appkit::NotificationCenter::addObserver(
      appkit::NotificationName::applicationDidChangeScreenParameters, lifetime_.whileAlive([this] {
        appkit::MainQueue::async(lifetime_.whileAlive([this] { handleScreenChange(); }));
      }));
}

void OrvaneModel::handleScreenChange() {
  // After a shut-off that the main queue has yet to complete, the guard rests.
  const bool wasRunning = isGuardRunning() && !guardService_.isShutOff();
  refreshDisplays();
  if (wasRunning) {
    restartGuardIfRunning();
  }
}

OrvaneStatus OrvaneModel::status() const {
  if (!hasAccessibilityPermission_.value()) {
    return OrvaneStatus::permissionRequired;
  }
  if (!hidesDockOnAllDisplays_.value() && selectedDisplayID_.value() && !selectedDisplay()) {
    return OrvaneStatus::targetMissing;
  }
  const DockPosition dockPosition = DockUtils::getDockPosition();
  if (dockPosition == DockPosition::top || dockPosition == DockPosition::unknown) {
    return OrvaneStatus::needsCheck;
  }
  if (isTemporarilyUnlocked_.value()) {
    return OrvaneStatus::temporarilyUnlocked;
  }
  return isGuardRunning() ? OrvaneStatus::locked : OrvaneStatus::unlocked;
}

std::optional<DisplaySnapshot> OrvaneModel::selectedDisplay() const {
  const std::optional<std::string>& id = selectedDisplayID_.value();
  if (!id) {
    return std::nullopt;
  }
  const std::vector<DisplaySnapshot>& displays = displays_.value();
  const auto found = std::ranges::find_if(
      displays, [&](const DisplaySnapshot& display) { return display.isNamedBy(*id); });
  return found != displays.end() ? std::optional(*found) : std::nullopt;
}

void OrvaneModel::refreshDisplays() {
  displays_.set(DockMouseGuard::displays());
  const std::vector<DisplaySnapshot>& displays = displays_.value();
  if (!selectedDisplayID_.value()) {
    auto chosen = std::ranges::find_if(displays, &DisplaySnapshot::isMain);
    if (chosen == displays.end()) {
      chosen = displays.begin();
    }
    setSelectedDisplayID(chosen != displays.end() ? std::optional(chosen->id) : std::nullopt);
  } else if (const auto selected = selectedDisplay();
             selected && selected->id != *selectedDisplayID_.value()) {
    // Replace an alias by the canonical identifier. A display that is not attached deliberately
    // stays the target, and is found again when it returns.
    setSelectedDisplayID(selected->id);
  }
  refreshPermission();
  noteChecked();
}

void OrvaneModel::selectDisplay(const std::string& id) {
  if (selectedDisplayID_.value() == id) {
    return;
  }
  setSelectedDisplayID(id);
  if (hidesDockOnAllDisplays_.value()) {
    return;
  }
  if (guardService_.isWaiting()) {
    // Otherwise the guard would resume with the earlier target.
    startGuard();
  } else {
    restartGuardIfRunning();
  }
}

void OrvaneModel::setSelectedDisplayID(std::optional<std::string> id) {
  OrvaneSettings::setSelectedDisplayID(id);
  selectedDisplayID_.set(std::move(id));
}

void OrvaneModel::setHidesDockOnAllDisplays(bool hides) {
  hidesDockOnAllDisplays_.set(hides);
  OrvaneSettings::setHidesDockOnAllDisplays(hides);
  if (hasAccessibilityPermission_.value()) {
    restartGuardIfRunning();
  }
}

void OrvaneModel::setTemporaryUnlockModifier(OrvaneModifier modifier) {
  temporaryUnlockModifier_.set(modifier);
  OrvaneSettings::setTemporaryUnlockModifier(modifier);
  restartGuardIfRunning();
}

void OrvaneModel::setAppLanguage(OrvaneLanguage language) {
  // Store first: observers of the change read their texts in the stored language.
  OrvaneSettings::setAppLanguage(language);
  appLanguage_.set(language);
  refreshDisplays();
}

bool OrvaneModel::refreshPermission() {
  const bool isTrusted = AXIsProcessTrusted() != 0;
  hasAccessibilityPermission_.set(isTrusted && !isPermissionStale_);
  return isTrusted;
}

void OrvaneModel::markPermissionStale() {
  isPermissionStale_ = true;
  hasAccessibilityPermission_.set(false);
}

void OrvaneModel::noteChecked() {
  lastCheckedAt_.set(CFAbsoluteTimeGetCurrent());
}

void OrvaneModel::refreshLaunchAtLoginStatus() {
  launchAtLoginEnabled_.set(LoginItem::status() == LoginItem::Status::enabled);
  launchAtLoginRequiresApproval_.set(LoginItem::status() == LoginItem::Status::requiresApproval);
}

void OrvaneModel::setLaunchAtLoginEnabled(bool enabled) {
  wantsLaunchAtLogin_.set(enabled);
  wasLaunchAtLoginBlocked_.set(enabled && !OrvaneLoginItem::isInPermanentLocation());
  launchAtLoginErrorMessage_.set(
      wasLaunchAtLoginBlocked_.value() ? std::nullopt : OrvaneLoginItem::setEnabled(enabled));
  refreshLaunchAtLoginStatus();
}

void OrvaneModel::openAccessibilitySettings() {
  constexpr double recheckSeconds = 1.0;
  OrvaneAccessibilityPermission::openSystemSettings();
  clearStalePermission();
  refreshPermission();
  appkit::MainQueue::asyncAfter(recheckSeconds,
                                lifetime_.whileAlive([this] { refreshPermission(); }));
}

void OrvaneModel::openLoginItemsSettings() {
  openSystemSettingsByFirstOf(
      {"x-apple.systempreferences:com.apple.LoginItems-Settings.extension"});
}

void OrvaneModel::openPrivacyPolicy() {
  appkit::Workspace::openURL(OrvaneProduct::privacyPolicyURL);
}

void OrvaneModel::openSupportEmail() {
  const std::string subject =
      appkit::Workspace::percentEncodedForQuery("Orvane Support").value_or("Orvane%20Support");
  appkit::Workspace::openURL("mailto:" + std::string(OrvaneProduct::supportAddress) +
                             "?subject=" + subject);
}

}  // namespace orvane
