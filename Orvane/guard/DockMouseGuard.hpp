// DockMouseGuard keeps the pointer from pressing against the Dock edge of the displays on which
// the Dock is not allowed: it watches mouse-moved events through an event tap and moves those that
// land in a trigger zone back into the display.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "Orvane/base/CFRef.hpp"
#include "Orvane/base/Lifetime.hpp"
#include "Orvane/geometry/DisplaySnapshot.hpp"
#include "Orvane/geometry/TriggerZone.hpp"
#include "Orvane/guard/GuardSnapshot.hpp"
#include "Orvane/guard/OrvaneModifier.hpp"
#include "Orvane/guard/RecentBlockTimestamps.hpp"
#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/NotificationCenter.hpp"
#include "Orvane/platform/appkit/Screen.hpp"

namespace orvane {

/// Main thread only: the tap's source is on the main run loop, so the filter runs there too. The
/// tap keeps a pointer to its guard, so a guard never moves and takes its tap down before it goes.
class DockMouseGuard {
 public:
  DockMouseGuard() = default;
  DockMouseGuard(const DockMouseGuard&) = delete;
  DockMouseGuard& operator=(const DockMouseGuard&) = delete;
  ~DockMouseGuard();

  /// Starts, or restarts with new settings. Without the Accessibility permission nothing changes
  /// but that the owner is told; without zones or without a tap the guard waits for the display
  /// arrangement to change.
  void start(const std::string& targetDisplayID, OrvaneModifier modifier, bool blocksAllDisplays);
  void stop();
  /// For a caller that looks regularly while the permission is there: the first look that finds the
  /// tap disabled enables it; if the next one finds it disabled again, a new tap takes its place.
  /// A shut-off that the main queue has not finished yet is finished.
  void reviveTap();

  /// The filter: called for every event that the tap delivers; returns the same event, whose
  /// location it has changed if it was in a zone. It runs for every pointer movement of the
  /// session: no lock, no input or output, no allocation; reports are left to the main queue, and
  /// only the task of one takes memory.
  CGEventRef eventTapCallback(CGEventType type, CGEventRef event);

  /// All three are called on the main queue, never from within the filter.
  std::function<void(const std::string& message)> onEvent;
  std::function<void(bool isTemporarilyUnlocked)> onTemporaryUnlockChanged;
  std::function<void(bool isRunning)> onRunningChanged;

  /// The guard is running when it holds an event tap.
  [[nodiscard]] bool isRunning() const { return static_cast<bool>(eventTap_); }
  [[nodiscard]] CFMachPortRef eventTap() const { return eventTap_.get(); }
  /// There are zones to guard, but the system refused the last tap.
  [[nodiscard]] bool isTapRefused() const { return !eventTap_ && !cachedTriggerZones_.empty(); }
  [[nodiscard]] GuardSnapshot snapshot() const;

  /// The attached displays in the system's order.
  [[nodiscard]] static std::vector<DisplaySnapshot> displays();
  /// Opens the system's Desktop & Dock settings by the first link that the system accepts.
  static void openDesktopAndDockSettings();

 private:
  /// The system disables the tap again and again when that happens so often within the window: the
  /// pointer of the whole session stalls each time, so the guard shuts itself off.
  static constexpr std::size_t disablingLimit = 5;
  static constexpr double disablingWindowSeconds = 10.0;

  void setTemporarilyUnlocked(bool value);
  void recordBlockedEvent();
  void disableEventTapForRapidBlocking();
  void handleDisabledTap();
  /// Notes that the system has disabled the tap, and whether that reaches the limit.
  [[nodiscard]] bool isDisabledTooOften();
  /// At once the tap is disabled; the main queue takes it down. Only a change of the displays or
  /// the next start brings the guard back.
  void shutOff();
  void finishShutOff();

  void refreshTriggerZones(std::span<const appkit::Screen> screens);
  [[nodiscard]] std::vector<TriggerZone> currentTriggerZones(
      std::span<const appkit::Screen> screens) const;
  void setupEventTap();
  void removeEventTap();
  void observeScreenChanges();
  void stopObservingScreens();
  void handleScreenConfigChanged();
  void updateForScreens(std::span<const appkit::Screen> screens);
  /// The tap goes, and the guard waits for the displays to change.
  void pause();
  void forgetRecentBlocks();
  void emit(std::string message);
  /// Announces that the guard has started or stopped running since the last announcement.
  void announceRunning();

  [[nodiscard]] static constexpr std::array<double, disablingLimit> neverDisabled() {
    std::array<double, disablingLimit> times{};
    times.fill(-std::numeric_limits<double>::infinity());
    return times;
  }

  CFRef<CFMachPortRef> eventTap_;
  CFRef<CFRunLoopSourceRef> runLoopSource_;
  /// The tap that is there is disabled for good, and the main queue is about to take it down.
  bool isShutOff_ = false;
  /// The last look found the tap disabled.
  bool wasRevived_ = false;
  bool lastAnnouncedRunning_ = false;
  std::vector<TriggerZone> cachedTriggerZones_;
  std::optional<appkit::ObserverToken> screenObserver_;
  std::string lockedDisplayIdentifier_;
  OrvaneModifier overrideModifier_ = OrvaneModifier::option;
  bool blocksAllDisplays_ = false;
  std::int64_t blockedCount_ = 0;
  bool isTemporarilyUnlocked_ = false;
  RecentBlockTimestamps recentBlockTimestamps_;
  /// Media-clock time in seconds.
  double lastBlockedEventLogAt_ = 0;
  /// When the system last disabled the tap, the oldest first; media-clock times in seconds.
  std::array<double, disablingLimit> disabledAt_ = neverDisabled();
  Lifetime lifetime_;
};

}  // namespace orvane
