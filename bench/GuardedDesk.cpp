// A simulated Mac with a running guard, for the benchmarks of the event path.
#include "bench/GuardedDesk.hpp"

#include <cstdint>
#include <string>

#include "Orvane/base/Require.hpp"

namespace orvane::bench {

GuardedDesk::GuardedDesk(std::size_t zoneCount) : zoneCount_(zoneCount) {
  desk::Machine& machine = scope_.machine();
  machine.permission.setTrusted(true);
  for (std::size_t index = 0; index <= zoneCount; ++index) {
    desk::Display display;
    display.number = static_cast<std::uint32_t>(index + 1);
    display.frame =
        CGRectMake(displayWidth * static_cast<double>(index), 0, displayWidth, displayHeight);
    require(!machine.displays.attach(display), "a display of the benchmark was refused");
  }
  machine.process.start();
  guard_ = std::make_unique<DockMouseGuard>();
  guard_->start("1", OrvaneModifier::option, false);
  machine.runDue();
  require(guard_->snapshot().zones.size() == zoneCount, "the benchmark's zones are missing");
}

GuardedDesk::~GuardedDesk() {
  guard_.reset();
}

CGPoint GuardedDesk::placeOutsideZones() const {
  return CGPointMake(displayWidth * (static_cast<double>(zoneCount_) + 0.5), displayHeight / 2);
}

CGPoint GuardedDesk::placeInLastZone() const {
  return CGPointMake(placeOutsideZones().x, displayHeight - 5);
}

void GuardedDesk::letTimePass() {
  constexpr std::int64_t betweenMovementsNanoseconds = 20'000'000;
  constexpr int movementsUntilRest = 4096;
  desk::Machine& machine = scope_.machine();
  machine.clock.moveTo(machine.clock.now() + betweenMovementsNanoseconds);
  if (++movementsSinceRest_ == movementsUntilRest) {
    movementsSinceRest_ = 0;
    machine.runDue();
  }
}

}  // namespace orvane::bench
