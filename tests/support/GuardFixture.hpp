// GuardFixture gives each test a guard on a trusted machine with two displays side by side, and
// records the guard's reports.
#pragma once

#include <cstdint>
#include <iomanip>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "Orvane/guard/DockMouseGuard.hpp"
#include "tests/support/GeometryPrinting.hpp"
#include "tests/support/MachineFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {

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
    machine.runDue();
    messages.clear();
  }
  void startPreventing() {
    guard->start("", OrvaneModifier::option, true);
    machine.runDue();
    messages.clear();
  }

  /// The final location of a mouse-moved event at `location`.
  CGPoint outcomeOf(CGPoint location, std::uint64_t flags = 0) {
    return machine.mouse.post(location, flags).value();
  }
  /// One movement into the monitor's zone.
  void block() { outcomeOf(inTheZone); }
  void block(int count) {
    for (int done = 0; done < count; ++done) {
      block();
    }
  }

  static constexpr CGPoint inTheZone{2500, 1075};
  static constexpr CGPoint outsideEveryZone{2500, 500};

  std::unique_ptr<DockMouseGuard> guard = std::make_unique<DockMouseGuard>();
  std::vector<std::string> messages;
  std::vector<bool> unlocks;
};

}  // namespace orvane

// In CGPoint's namespace, where argument-dependent lookup finds them.
inline std::ostream& operator<<(std::ostream& out, CGPoint point) {
  return out << std::setprecision(17) << "(" << point.x << ", " << point.y << ")";
}
inline bool operator==(CGPoint first, CGPoint second) {
  return first.x == second.x && first.y == second.y;
}
