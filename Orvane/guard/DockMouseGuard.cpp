// The guard's life cycle: starting, following the display arrangement, stopping, reporting. The
// filter that runs for every event is in DockMouseGuardFilter.cpp.
#include "Orvane/guard/DockMouseGuard.hpp"

#include <cstddef>
#include <set>
#include <utility>

#include "Orvane/base/Require.hpp"
#include "Orvane/geometry/DockUtils.hpp"
#include "Orvane/geometry/OrvaneGeometry.hpp"
#include "Orvane/geometry/OrvaneScreen.hpp"
#include "Orvane/guard/DockMouseGuardMessages.hpp"
#include "Orvane/platform/SystemSettingsLinks.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "Orvane/platform/appkit/Screen.hpp"

namespace orvane {

namespace {

CGEventRef forwardToGuard(CGEventTapProxy /*proxy*/, CGEventType type, CGEventRef event,
                          void* userInfo) {
  return static_cast<DockMouseGuard*>(userInfo)->eventTapCallback(type, event);
}

}  // namespace

DockMouseGuard::~DockMouseGuard() {
  stop();
}

void DockMouseGuard::start(const std::string& targetDisplayID, OrvaneModifier modifier,
                           bool blocksAllDisplays) {
  if (!AXIsProcessTrusted()) {
    emit(DockMouseGuardMessages::permissionMissing());
    return;
  }
  lockedDisplayIdentifier_ = targetDisplayID;
  overrideModifier_ = modifier;
  blocksAllDisplays_ = blocksAllDisplays;
  removeEventTap();
  refreshTriggerZones(appkit::Screen::screens());
  if (cachedTriggerZones_.empty()) {
    emit(DockMouseGuardMessages::noTriggerZones());
  } else {
    setupEventTap();
  }
  if (!eventTap_) {
    pause();
  }
  observeScreenChanges();
  announceRunning();
}

bool DockMouseGuard::isSetTo(const std::string& targetDisplayID, OrvaneModifier modifier,
                             bool blocksAllDisplays) const {
  const bool hasTarget = blocksAllDisplays || lockedDisplayIdentifier_ == targetDisplayID;
  const bool hasModifier = !eventTap_ || overrideModifier_ == modifier;
  return blocksAllDisplays_ == blocksAllDisplays && hasTarget && hasModifier;
}

GuardSnapshot DockMouseGuard::snapshot() const {
  return {.isRunning = isRunning(),
          .isObservingScreens = screenObserver_.has_value(),
          .zones = cachedTriggerZones_,
          .lockedDisplayIdentifier = lockedDisplayIdentifier_,
          .overrideModifier = overrideModifier_,
          .blocksAllDisplays = blocksAllDisplays_,
          .isTemporarilyUnlocked = isTemporarilyUnlocked_,
          .blockedCount = blockedCount_,
          .recentBlockCount = recentBlockTimestamps_.size()};
}

void DockMouseGuard::stop() {
  removeEventTap();
  stopObservingScreens();
  cachedTriggerZones_.clear();
  blocksAllDisplays_ = false;
  forgetRecentBlocks();
  setTemporarilyUnlocked(false);
  announceRunning();
}

void DockMouseGuard::reviveTap() {
  // In a modal session the main queue is suspended, and the pending clean-up with it.
  finishShutOff();
  announceRunning();
  if (!eventTap_ || CGEventTapIsEnabled(eventTap_.get())) {
    wasRevived_ = false;
    return;
  }
  if (!std::exchange(wasRevived_, true)) {
    CGEventTapEnable(eventTap_.get(), true);
    return;
  }
  if (recordDisabling()) {
    shutOff();
    return;
  }
  removeEventTap();
  setupEventTap();
  if (!eventTap_) {
    pause();
  }
  announceRunning();
}

void DockMouseGuard::followDock() {
  if (!screenObserver_) {
    return;
  }
  const DockPosition present = DockUtils::getDockPosition();
  const bool isKnown = present != DockPosition::top && present != DockPosition::unknown;
  if (isKnown && present != dockPosition_) {
    handleScreenConfigChanged();
  }
}

void DockMouseGuard::refreshTriggerZones(std::span<const appkit::Screen> screens) {
  dockPosition_ = DockUtils::getDockPosition();
  cachedTriggerZones_ = currentTriggerZones(screens);
}

std::vector<TriggerZone> DockMouseGuard::currentTriggerZones(
    std::span<const appkit::Screen> screens) const {
  std::vector<CGRect> frames;
  for (const appkit::Screen& screen : screens) {
    frames.push_back(OrvaneScreen::orvaneCGFrame(screen, screens));
  }
  if (blocksAllDisplays_) {
    std::set<std::size_t> everyIndex;
    for (std::size_t index = 0; index < frames.size(); ++index) {
      everyIndex.insert(index);
    }
    return OrvaneGeometry::calculateTriggerZones(frames, everyIndex, dockPosition_);
  }
  const auto lockedIndex = OrvaneScreen::orvaneFindScreen(lockedDisplayIdentifier_, screens);
  if (!lockedIndex) {
    return {};
  }
  return OrvaneGeometry::calculateTriggerZones(frames, *lockedIndex, dockPosition_);
}

void DockMouseGuard::setupEventTap() {
  require(!eventTap_, "a guard has one event tap at a time");
  // Mouse-moved events only, on purpose: drags and clicks are not filtered.
  constexpr CGEventMask mouseMoved = CGEventMask{1} << kCGEventMouseMoved;
  auto port = CFRef<CFMachPortRef>::owning(
      CGEventTapCreate(kCGSessionEventTap, kCGTailAppendEventTap, kCGEventTapOptionDefault,
                       mouseMoved, forwardToGuard, this));
  if (!port) {
    emit(DockMouseGuardMessages::tapRefused());
    return;
  }
  auto source = CFRef<CFRunLoopSourceRef>::owning(
      CFMachPortCreateRunLoopSource(kCFAllocatorDefault, port.get(), 0));
  if (!source) {
    // A tap without a run-loop source would stall every event of the session.
    CGEventTapEnable(port.get(), false);
    CFMachPortInvalidate(port.get());
    emit(DockMouseGuardMessages::tapRefused());
    return;
  }
  eventTap_ = std::move(port);
  runLoopSource_ = std::move(source);
  CFRunLoopAddSource(CFRunLoopGetCurrent(), runLoopSource_.get(), kCFRunLoopCommonModes);
  CGEventTapEnable(eventTap_.get(), true);
  emit(DockMouseGuardMessages::started(cachedTriggerZones_.size()));
}

void DockMouseGuard::removeEventTap() {
  if (eventTap_) {
    CGEventTapEnable(eventTap_.get(), false);
    CFRunLoopRemoveSource(CFRunLoopGetCurrent(), runLoopSource_.get(), kCFRunLoopCommonModes);
    // A port that is not invalidated slows down the whole system.
    CFMachPortInvalidate(eventTap_.get());
  }
  runLoopSource_.reset();
  eventTap_.reset();
  isShutOff_ = false;
}

void DockMouseGuard::observeScreenChanges() {
  stopObservingScreens();
  screenObserver_ = appkit::NotificationCenter::addObserver(
      appkit::NotificationName::applicationDidChangeScreenParameters,
      lifetime_.whileAlive([this] { handleScreenConfigChanged(); }));
}

void DockMouseGuard::stopObservingScreens() {
  if (screenObserver_) {
    appkit::NotificationCenter::removeObserver(*screenObserver_);
    screenObserver_.reset();
  }
}

void DockMouseGuard::handleScreenConfigChanged() {
  // A display change ends a shut-off, even one that the main queue has yet to complete.
  finishShutOff();
  updateForScreens(appkit::Screen::screens());
  announceRunning();
}

void DockMouseGuard::updateForScreens(std::span<const appkit::Screen> screens) {
  refreshTriggerZones(screens);
  if (cachedTriggerZones_.empty()) {
    pause();
    if (!blocksAllDisplays_ && !lockedDisplayIdentifier_.empty() &&
        !OrvaneScreen::orvaneFindScreen(lockedDisplayIdentifier_, screens)) {
      emit(DockMouseGuardMessages::targetUnavailable());
    }
    return;
  }
  if (!eventTap_) {
    setupEventTap();
  }
}

void DockMouseGuard::finishShutOff() {
  if (!isShutOff_) {
    return;
  }
  cachedTriggerZones_.clear();
  forgetRecentBlocks();
  disabledAt_ = neverDisabled();
  pause();
}

void DockMouseGuard::pause() {
  removeEventTap();
  // Without a tap, the release of the unlock key would go unnoticed.
  setTemporarilyUnlocked(false);
}

void DockMouseGuard::forgetRecentBlocks() {
  recentBlockTimestamps_.clear();
  lastBlockedEventLogAt_ = 0;
}

void DockMouseGuard::emit(std::string message) {
  appkit::MainQueue::async(lifetime_.whileAlive([this, message = std::move(message)] {
    if (onEvent) {
      onEvent(message);
    }
  }));
}

void DockMouseGuard::announceRunning() {
  if (lastAnnouncedRunning_ == isRunning()) {
    return;
  }
  lastAnnouncedRunning_ = isRunning();
  appkit::MainQueue::async(lifetime_.whileAlive([this, isRunning = isRunning()] {
    if (onRunningChanged) {
      onRunningChanged(isRunning);
    }
  }));
}

std::vector<DisplaySnapshot> DockMouseGuard::displays() {
  return DisplaySnapshot::ofAllScreens();
}

void DockMouseGuard::openDesktopAndDockSettings() {
  openSystemSettingsByFirstOf({"x-apple.systempreferences:com.apple.Desktop-Settings.extension",
                               "x-apple.systempreferences:com.apple.preference.dock"});
}

}  // namespace orvane
