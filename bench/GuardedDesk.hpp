// A simulated Mac with a running guard, for the benchmarks of the event path.
#pragma once

#include <cstddef>
#include <memory>

#include "Orvane/guard/DockMouseGuard.hpp"
#include "desk/machine/MachineScope.hpp"

namespace orvane::bench {

/// Displays in a row, the Dock at the bottom and pinned to the first one, so that each other
/// display has one zone along its lower edge.
class GuardedDesk {
 public:
  static constexpr double displayWidth = 1920;
  static constexpr double displayHeight = 1080;

  explicit GuardedDesk(std::size_t zoneCount);
  GuardedDesk(const GuardedDesk&) = delete;
  GuardedDesk& operator=(const GuardedDesk&) = delete;
  ~GuardedDesk();

  [[nodiscard]] desk::Machine& machine() { return scope_.machine(); }
  [[nodiscard]] DockMouseGuard& guard() { return *guard_; }

  /// In the middle of the last display, outside of every zone.
  [[nodiscard]] CGPoint placeOutsideZones() const;
  /// In the zone of the last display, which is matched last.
  [[nodiscard]] CGPoint placeInLastZone() const;

  /// Lets enough time pass that the guard never detects runaway blocking; occasionally serves the
  /// main queue.
  void letTimePass();

 private:
  desk::MachineScope scope_;
  std::unique_ptr<DockMouseGuard> guard_;
  std::size_t zoneCount_;
  int movementsSinceRest_ = 0;
};

}  // namespace orvane::bench
