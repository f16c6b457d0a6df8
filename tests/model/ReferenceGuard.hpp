// A reference implementation of the guard: a list of zones, a tap that works or not, and the
// blocked events.
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

/// Whether a step of the guard sends its owner a message.
struct Report {
  bool isMade = false;
};

struct Guard {
  bool hasTap = false;
  /// The system has ended the tap, as it does when the permission is revoked.
  bool tapIsDead = false;
  /// The guard has disabled the tap and has yet to remove it.
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

  Report start(const World& world, const std::string& newTarget, const std::string& newModifier,
               bool newBlocksAll);
  void stop();
  /// The displays changed.
  Report displaysChanged(const World& world);
  /// Filters one mouse-moved event; returns its final location.
  CGPoint move(const World& world, CGPoint place, std::uint64_t flags, Report& report);
  /// Runs what was posted to the main queue.
  void settle();
  void permissionLost() { tapIsDead = hasTap; }

 private:
  void refreshZones(const World& world);
  void takeTapDown();
  Report putTapUp(const World& world);
};

}  // namespace orvane::reference
