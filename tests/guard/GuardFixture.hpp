// GuardFixture gives each test a guard on a trusted machine with two displays side by side, and
// records the guard's reports.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iomanip>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/guard/DockMouseGuard.hpp"
#include "tests/support/GeometryPrinting.hpp"
#include "tests/support/MachineFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {

using Messages = std::vector<std::string>;
using Unlocks = std::vector<bool>;
using Zones = std::vector<TriggerZone>;

inline const char* const startedWithOneZone = "Mouse guard started. Trigger zones: 1";
inline const char* const noZones =
    "No available trigger zones. Check the target display, Dock position, and display "
    "arrangement.";
inline const char* const notTrusted =
    "Accessibility permission is not enabled. Dock locking was not started.";
inline const char* const tapWasRefused =
    "Could not create the CGEventTap. Make sure Accessibility permission is enabled.";
inline const char* const targetGone = "The target display is unavailable. Mouse guard paused.";

inline const TriggerZone zoneOfTheLaptop{{{0, 1068}, {1920, 12}}, {0, -12}};
inline const TriggerZone zoneOfTheMonitor{{{1920, 1068}, {1920, 12}}, {0, -12}};

inline constexpr std::uint64_t optionKey = kCGEventFlagMaskAlternate;

/// The laptop (display 1) with a monitor (display 2) at its right; both end at y 1080 in global
/// coordinates.
class GuardFixture : public desk::MachineFixture {
 protected:
  GuardFixture() {
    desk::attach(machine, desk::laptop());
    desk::attach(machine, desk::monitorAtTheRight());
    machine.permission.setTrusted(true);
    guard->onEvent = [this](const std::string& message) { messages.push_back(message); };
    guard->onTemporaryUnlockChanged = [this](bool isUnlocked) { unlocks.push_back(isUnlocked); };
  }

  /// Pins the Dock to the laptop, so that the monitor is guarded along its whole bottom.
  void startPinned(OrvaneModifier modifier = OrvaneModifier::option) {
    guard->start(desk::uuidNamed('A'), modifier, false);
    takeMessages();
  }
  void startPreventing() {
    guard->start("", OrvaneModifier::option, true);
    takeMessages();
  }

  /// The final location of a mouse-moved event at `location`.
  CGPoint outcomeOf(CGPoint location, std::uint64_t flags = 0) {
    return machine.mouse.post(location, flags).value();
  }
  /// Movements into the monitor's zone.
  void block(int count = 1) {
    for (int done = 0; done < count; ++done) {
      outcomeOf(inTheZone);
    }
  }
  /// The system disables the tap and notifies the guard.
  void disableTap(CGEventType reason = kCGEventTapDisabledByTimeout) {
    machine.eventTaps.disableAll(reason, inTheZone);
  }
  /// Returns and clears the guard's messages, after serving the main queue.
  Messages takeMessages() {
    machine.runDue();
    return std::exchange(messages, {});
  }

  void expectGuarding() const {
    EXPECT_TRUE(guard->isRunning());
    EXPECT_TRUE(guard->snapshot().isObservingScreens);
    EXPECT_FALSE(guard->snapshot().zones.empty());
    EXPECT_TRUE(machine.eventTaps.isAnyEnabled());
    expectObjects(1, true);
  }
  void expectWaiting() const { expectWithoutTap(true); }
  void expectIdle() const { expectWithoutTap(false); }

  static constexpr CGPoint inTheZone{2500, 1075};
  /// Where the guard moves a pointer that is there.
  static constexpr CGPoint movedBack{2500, 1063};
  static constexpr CGPoint outsideEveryZone{2500, 500};

  std::unique_ptr<DockMouseGuard> guard = std::make_unique<DockMouseGuard>();
  Messages messages;
  Unlocks unlocks;

 private:
  void expectWithoutTap(bool isObserving) const {
    EXPECT_FALSE(guard->isRunning());
    EXPECT_EQ(guard->snapshot().isObservingScreens, isObserving);
    EXPECT_TRUE(guard->snapshot().zones.empty());
    expectObjects(0, isObserving);
  }
  void expectObjects(std::size_t taps, bool isObserving) const {
    EXPECT_EQ(machine.eventTaps.aliveCount(), taps);
    EXPECT_EQ(machine.runLoop.sources().size(), taps);
    EXPECT_EQ(machine.objects.liveCount(desk::ObjectKind::machPort), taps);
    EXPECT_EQ(machine.observers.count(), isObserving ? 1U : 0U);
  }
};

}  // namespace orvane

// In CGPoint's namespace, where argument-dependent lookup finds them.
inline std::ostream& operator<<(std::ostream& out, CGPoint point) {
  return out << std::setprecision(17) << "(" << point.x << ", " << point.y << ")";
}
inline bool operator==(CGPoint first, CGPoint second) {
  return first.x == second.x && first.y == second.y;
}
