// OrvaneModel's actions on the guard. The two modes, pinning and preventing, exclude each other:
// switching one on stops the other first, and switching the active one off stops the guard.
#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/model/OrvaneSettings.hpp"
#include "Orvane/permission/OrvaneAccessibilityPermission.hpp"

namespace orvane {

bool OrvaneModel::isPinning() const {
  return isGuardRunning() && !hidesDockOnAllDisplays_.value();
}

bool OrvaneModel::isPreventing() const {
  return isGuardRunning() && hidesDockOnAllDisplays_.value();
}

bool OrvaneModel::isTargetAttached() const {
  return selectedDisplay().has_value();
}

bool OrvaneModel::hasWhatTheModeNeeds() const {
  return hidesDockOnAllDisplays_.value() || selectedDisplayID_.value().has_value();
}

void OrvaneModel::startGuard() {
  isRestoreBlocked_ = false;
  guardService_.start(selectedDisplayID_.value().value_or(""), temporaryUnlockModifier_.value(),
                      hidesDockOnAllDisplays_.value());
  noteChecked();
}

void OrvaneModel::startGuardForTheUser() {
  startGuard();
  OrvaneSettings::setOrvaneEnabled(true);
}

void OrvaneModel::stopGuardForTheUser() {
  guardService_.stop();
  OrvaneSettings::setOrvaneEnabled(false);
}

void OrvaneModel::toggleLock() {
  if (isGuardRunning()) {
    stopGuardForTheUser();
    if (hidesDockOnAllDisplays_.value()) {
      setHidesDockOnAllDisplays(false);
    }
    isTemporarilyUnlocked_.set(false);
    noteChecked();
    return;
  }
  refreshDisplays();
  if (!hasAccessibilityPermission_.value()) {
    OrvaneAccessibilityPermission::check(lifetime_.whileAlive([this] {
      setHasAccessibilityPermission(true);
      refreshDisplays();
      if (hasWhatTheModeNeeds()) {
        startGuardForTheUser();
      }
    }));
    return;
  }
  // The target need not be attached: the guard then waits for it, and the status says so.
  if (hasWhatTheModeNeeds()) {
    startGuardForTheUser();
  }
}

void OrvaneModel::toggleSelectedDisplayLock() {
  if (isPinning()) {
    toggleLock();
    return;
  }
  stopActiveLockIfNeeded();
  if (hidesDockOnAllDisplays_.value()) {
    setHidesDockOnAllDisplays(false);
  }
  toggleLock();
}

void OrvaneModel::toggleHideDockOnAllDisplays() {
  if (isPreventing()) {
    toggleLock();
    return;
  }
  if (!hidesDockOnAllDisplays_.value()) {
    refreshDisplays();
    if (!hasAccessibilityPermission_.value()) {
      requestAccessibilityForAllDisplayGuard();
      return;
    }
  }
  stopActiveLockIfNeeded();
  if (!hidesDockOnAllDisplays_.value()) {
    setHidesDockOnAllDisplays(true);
  }
  toggleLock();
}

void OrvaneModel::requestAccessibilityForAllDisplayGuard() {
  OrvaneAccessibilityPermission::check(lifetime_.whileAlive([this] {
    setHasAccessibilityPermission(true);
    refreshDisplays();
    stopActiveLockIfNeeded();
    setHidesDockOnAllDisplays(true);
    toggleLock();
  }));
}

void OrvaneModel::stopActiveLockIfNeeded() {
  if (!isGuardRunning()) {
    return;
  }
  stopGuardForTheUser();
  isTemporarilyUnlocked_.set(false);
  noteChecked();
}

void OrvaneModel::restartGuardIfRunning() {
  if (!isGuardRunning()) {
    return;
  }
  if (hidesDockOnAllDisplays_.value() || isTargetAttached()) {
    startGuard();
    return;
  }
  // The user's wish stays stored, so that the lock comes back at the next launch if the display is
  // attached then.
  suspendGuard();
}

void OrvaneModel::suspendGuard() {
  guardService_.stop();
  isTemporarilyUnlocked_.set(false);
  noteGuard();
}

void OrvaneModel::resumeGuard() {
  if (isGuardRunning() || !OrvaneSettings::isOrvaneEnabled()) {
    return;
  }
  refreshDisplays();
  if (hasWhatTheModeNeeds()) {
    startGuard();
  }
}

void OrvaneModel::restoreLockIfNeeded() {
  if (!OrvaneSettings::isOrvaneEnabled()) {
    return;
  }
  refreshDisplays();
  // No prompt at launch: the status shows a missing permission.
  isRestoreBlocked_ = !AXIsProcessTrusted();
  if (isRestoreBlocked_ || !(hidesDockOnAllDisplays_.value() || isTargetAttached())) {
    return;
  }
  startGuard();
}

}  // namespace orvane
