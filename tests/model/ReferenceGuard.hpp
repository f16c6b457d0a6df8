// The guard as its behaviour is described: a list of zones, a tap that works or not, and what was
// blocked.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Orvane/platform/Quartz.hpp"
#include "tests/model/ReferenceWorld.hpp"

namespace orvane::reference {

struct Zone {
  CGRect rect;
  CGVector nudge;
};

/// What a step of the guard tells its owner.
struct Told {
  bool anything = false;
};

struct Guard {
  bool hasTap = false;
  /// The system took the tap's events away, as it does with the permission.
  bool tapIsDead = false;
  /// The guard itself switched the tap off and has not yet taken it down.
  bool isShuttingOff = false;
  bool observes = false;
  std::vector<Zone> zones;
  std::string target;
  std::string modifier = "option";
  bool blocksAll = false;
  bool isUnlocked = false;
  std::int64_t blocked = 0;
  std::vector<double> recent;
  double lastReport = 0;

  Told start(const World& world, const std::string& newTarget, const std::string& newModifier,
             bool newBlocksAll);
  void stop();
  /// The displays changed.
  Told displaysChanged(const World& world);
  /// One mouse-moved event; returns where it comes out.
  CGPoint move(const World& world, CGPoint place, std::uint64_t flags, Told& told);
  /// What was left to the main queue.
  void settle();
  void permissionLost() { tapIsDead = hasTap; }

 private:
  void refreshZones(const World& world);
  void takeTapDown();
  Told putTapUp(const World& world);
};

}  // namespace orvane::reference
