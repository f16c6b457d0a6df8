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
#include "Orvane/geometry/DockPosition.hpp"
#include "Orvane/geometry/TriggerZone.hpp"
#include "Orvane/guard/GuardSnapshot.hpp"
#include "Orvane/guard/OrvaneModifier.hpp"
#include "Orvane/guard/RecentBlockTimestamps.hpp"
#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/NotificationCenter.hpp"
#include "Orvane/platform/appkit/Screen.hpp"

namespace orvane {

/// Main thread only: the tap's source is on the main run loop, so the filter runs there too. The
/// tap keeps a pointer to its guard, so a guard cannot be moved, and its destructor removes the
/// tap.
class DockMouseGuard {
 public:
  DockMouseGuard() = default;
  DockMouseGuard(const DockMouseGuard&) = delete;
  DockMouseGuard& operator=(const DockMouseGuard&) = delete;
  ~DockMouseGuard();

  /// Starts, or restarts with new settings. Without the Accessibility permission it only reports
  /// that; without zones or a tap it waits for the display arrangement to change.
  void start(const std::string& targetDisplayID, OrvaneModifier modifier, bool blocksAllDisplays);
  void stop();
  /// To be called periodically while the permission is granted. The first call that finds the tap
  /// disabled enables it; if the next call finds it disabled again, it replaces the tap. Also
  /// completes a pending shut-off.
  void reviveTap();
  /// To be called periodically: follows the Dock to another edge, because the system posts no
  /// notification when a hidden Dock moves. Ignores an unknown edge. Does nothing after `stop`.
  void followDock();

  /// The filter: called for every event that the tap delivers. Returns the same event, with its
  /// location changed if it was in a zone. It runs for every pointer movement of the session, so it
  /// takes no lock, does no input or output, and allocates only the tasks that it posts to the main
  /// queue.
  CGEventRef eventTapCallback(CGEventType type, CGEventRef event);

  /// Called on the main queue, never from within the filter.
  std::function<void(const std::string& message)> onEvent;
  std::function<void(bool isTemporarilyUnlocked)> onTemporaryUnlockChanged;
  std::function<void(bool isRunning)> onRunningChanged;

  /// The guard is running when it holds an event tap.
  [[nodiscard]] bool isRunning() const { return static_cast<bool>(eventTap_); }
  /// Whether the guard has shut itself off, and the main queue has yet to remove the tap.
  [[nodiscard]] bool isShutOff() const { return isShutOff_; }
  /// Whether the guard has no tap now, but may create one when the displays change.
  [[nodiscard]] bool isWaiting() const { return !eventTap_ && screenObserver_; }
  /// Whether the guard has zones but no tap, because the system refused the last one.
  [[nodiscard]] bool wasTapRefused() const { return !eventTap_ && !cachedTriggerZones_.empty(); }
  /// Whether the guard guards with these settings. A start without the permission leaves a running
  /// guard with those that it had. A guard that blocks all displays has no target, and one without
  /// a tap no unlock key.
  [[nodiscard]] bool isSetTo(const std::string& targetDisplayID, OrvaneModifier modifier,
                             bool blocksAllDisplays) const;
  [[nodiscard]] GuardSnapshot snapshot() const;

  /// The attached displays in the system's order.
  [[nodiscard]] static std::vector<DisplaySnapshot> displays();
  /// Opens the system's Desktop & Dock settings by the first link that the system accepts.
  static void openDesktopAndDockSettings();

 private:
  /// When the system disables the tap this often within the window, the guard shuts itself off,
  /// because each time the pointer of the whole session stalls.
  static constexpr std::size_t disablingLimit = 5;
  static constexpr double disablingWindowSeconds = 10.0;

  void setTemporarilyUnlocked(bool value);
  void recordBlockedEvent();
  void disableEventTapForRapidBlocking();
  void handleDisabledTap();
  /// Records that the system has disabled the tap. True when that reaches the limit.
  [[nodiscard]] bool recordDisabling();
  /// Disables the tap at once and has the main queue remove it. Only a change of the displays or of
  /// the Dock's edge, or the next start, resumes the guard.
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
  /// Removes the tap and waits for the displays to change.
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
  /// The present tap is disabled for good; its removal is pending on the main queue.
  bool isShutOff_ = false;
  /// The last `reviveTap` found the tap disabled.
  bool wasRevived_ = false;
  bool lastAnnouncedRunning_ = false;
  std::vector<TriggerZone> cachedTriggerZones_;
  /// The Dock's edge that was last followed.
  DockPosition dockPosition_ = DockPosition::unknown;
  std::optional<appkit::ObserverToken> screenObserver_;
  std::string lockedDisplayIdentifier_;
  OrvaneModifier overrideModifier_ = OrvaneModifier::option;
  bool blocksAllDisplays_ = false;
  std::int64_t blockedCount_ = 0;
  bool isTemporarilyUnlocked_ = false;
  RecentBlockTimestamps recentBlockTimestamps_;
  /// Media-clock time in seconds.
  double lastBlockedEventLogAt_ = 0;
  /// When the system last disabled the tap, oldest first; media-clock times in seconds.
  std::array<double, disablingLimit> disabledAt_ = neverDisabled();
  Lifetime lifetime_;
};

}  // namespace orvane
