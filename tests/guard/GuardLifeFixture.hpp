// Shared by the tests of the guard's life cycle: the messages in English, the zones of the two
// displays, and the expectations for a guard that guards, waits or is idle.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/GuardFixture.hpp"

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

class GuardLifeFixture : public GuardFixture {
 protected:
  /// Returns and clears the guard's messages, after serving the main queue.
  Messages takeMessages() {
    machine.runDue();
    return std::exchange(messages, {});
  }
  [[nodiscard]] std::size_t portCount() const {
    return machine.objects.liveCount(desk::ObjectKind::machPort);
  }
  void expectGuarding() const {
    EXPECT_TRUE(guard->isRunning());
    EXPECT_TRUE(guard->snapshot().isObservingScreens);
    EXPECT_FALSE(guard->snapshot().zones.empty());
    EXPECT_EQ(machine.eventTaps.aliveCount(), 1U);
    EXPECT_TRUE(machine.eventTaps.isAnyEnabled());
    EXPECT_EQ(machine.runLoop.sources().size(), 1U);
    EXPECT_EQ(machine.observers.count(), 1U);
    EXPECT_EQ(portCount(), 1U);
  }
  void expectWithoutTap(bool isObserving) const {
    EXPECT_FALSE(guard->isRunning());
    EXPECT_EQ(guard->snapshot().isObservingScreens, isObserving);
    EXPECT_TRUE(guard->snapshot().zones.empty());
    EXPECT_EQ(machine.eventTaps.aliveCount(), 0U);
    EXPECT_EQ(machine.runLoop.sources().size(), 0U);
    EXPECT_EQ(machine.observers.count(), isObserving ? 1U : 0U);
    EXPECT_EQ(portCount(), 0U);
  }
  void expectWaiting() const { expectWithoutTap(true); }
  void expectIdle() const { expectWithoutTap(false); }
};

}  // namespace orvane
