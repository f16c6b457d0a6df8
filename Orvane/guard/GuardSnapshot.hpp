// GuardSnapshot is the state of a guard at one moment.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Orvane/geometry/TriggerZone.hpp"
#include "Orvane/guard/OrvaneModifier.hpp"

namespace orvane {

/// By default that of a new guard.
struct GuardSnapshot {
  /// The guard holds an event tap.
  bool isRunning = false;
  bool isObservingScreens = false;
  /// In global display coordinates, in the order in which they are tried.
  std::vector<TriggerZone> zones = {};
  /// Empty while all displays are blocked.
  std::string lockedDisplayIdentifier = {};
  OrvaneModifier overrideModifier = OrvaneModifier::option;
  bool blocksAllDisplays = false;
  bool isTemporarilyUnlocked = false;
  /// Events blocked during the guard's life.
  std::int64_t blockedCount = 0;
  /// How many of them count towards a runaway.
  std::size_t recentBlockCount = 0;
};

}  // namespace orvane
