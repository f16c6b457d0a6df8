// OrvaneModel's actions on the guard. The two modes, pinning and preventing, exclude each other:
// switching one on stops the other first, and switching the active one off stops the guard.
#include <utility>

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/model/OrvaneSettings.hpp"
#include "Orvane/permission/OrvaneAccessibilityPermission.hpp"

namespace orvane {

OrvaneMode OrvaneModel::mode() const {
  if (!isGuardRunning()) {
    return OrvaneMode::off;
  }
  return hidesDockOnAllDisplays_.value() ? OrvaneMode::preventing : OrvaneMode::pinning;
}

bool OrvaneModel::isTargetAttached() const {
  return selectedDisplay().has_value();
}

bool OrvaneModel::canStart() const {
  return hidesDockOnAllDisplays_.value() || selectedDisplayID_.value().has_value();
}

void OrvaneModel::startGuard() {
  isRestoreBlocked_ = false;
  guardService_.start(selectedDisplayID_.value().value_or(""), temporaryUnlockModifier_.value(),
                      hidesDockOnAllDisplays_.value());
  noteChecked();
}

void OrvaneModel::startGuardForTheUser() {
  lastUserAction_ = ++userActionCount_;
  startGuard();
  OrvaneSettings::setOrvaneEnabled(true);
}

void OrvaneModel::stopGuardForTheUser() {
  lastUserAction_ = ++userActionCount_;
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
  clearStalePermission();
  refreshDisplays();
  // The target need not be attached: the guard then waits for it, and the status reports that.
  const auto start = [this] {
    if (canStart()) {
      startGuardForTheUser();
    }
  };
  if (hasAccessibilityPermission_.value()) {
    start();
  } else {
    requestPermission([this, start, prevents = hidesDockOnAllDisplays_.value()] {
      // An earlier request may have changed the mode in the meantime.
      if (hidesDockOnAllDisplays_.value() != prevents) {
        setHidesDockOnAllDisplays(prevents);
      }
      start();
    });
  }
}

void OrvaneModel::toggleSelectedDisplayLock() {
  if (mode() == OrvaneMode::pinning) {
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
  if (mode() == OrvaneMode::preventing) {
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
  requestPermission([this] {
    stopActiveLockIfNeeded();
    setHidesDockOnAllDisplays(true);
    toggleLock();
  });
}

void OrvaneModel::requestPermission(std::function<void()> start) {
  OrvaneAccessibilityPermission::check(
      lifetime_.whileAlive([this, start = std::move(start), request = ++userActionCount_] {
        if (request < lastUserAction_) {
          return;
        }
        clearStalePermission();
        refreshDisplays();
        start();
        // The start counts as old as its request, so that a later request still supersedes it.
        lastUserAction_ = request;
      }));
}

void OrvaneModel::stopActiveLockIfNeeded() {
  if (!isGuardRunning()) {
    return;
  }
  stopGuardForTheUser();
  isTemporarilyUnlocked_.set(false);
}

void OrvaneModel::restartGuardIfRunning() {
  if (!isGuardRunning()) {
    return;
  }
  if (hidesDockOnAllDisplays_.value() || isTargetAttached()) {
    startGuard();
    return;
  }
  // The setting stays stored, so that the next launch restores the lock if the display is
  // attached then.
  suspendGuard();
}

void OrvaneModel::suspendGuard() {
  guardService_.stop();
  isTemporarilyUnlocked_.set(false);
}

void OrvaneModel::resumeGuard() {
  if (isGuardRunning() || !OrvaneSettings::isOrvaneEnabled()) {
    return;
  }
  refreshDisplays();
  if (canStart()) {
    startGuard();
  }
}

void OrvaneModel::reviveGuard() {
  if (guardService_.isSetTo(selectedDisplayID_.value().value_or(""),
                            temporaryUnlockModifier_.value(), hidesDockOnAllDisplays_.value())) {
    guardService_.reviveTap();
  } else {
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
