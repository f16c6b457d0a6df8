// The filter on random arrangements of displays: events that it moves end outside of their zone;
// all others are unchanged.
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/guard/DockMouseGuard.hpp"
#include "desk/machine/MachineScope.hpp"
#include "tests/support/ArrangementGenerator.hpp"
#include "tests/support/GuardFixture.hpp"

namespace orvane {
namespace {

bool isInside(const CGRect& rect, CGPoint point) {
  return point.x >= rect.origin.x && point.x < rect.origin.x + rect.size.width &&
         point.y >= rect.origin.y && point.y < rect.origin.y + rect.size.height;
}

const char* nameOf(DockPosition edge) {
  switch (edge) {
    case DockPosition::left:
      return "left";
    case DockPosition::right:
      return "right";
    default:
      return "bottom";
  }
}

/// Attaches the arrangement, whose frames are global, in window-system coordinates.
void attachAll(desk::Machine& machine, const Arrangement& arrangement) {
  const double height = arrangement.frames.front().size.height;
  std::uint32_t number = 1;
  for (const CGRect& frame : arrangement.frames) {
    const CGRect flipped{{frame.origin.x, height - frame.origin.y - frame.size.height}, frame.size};
    desk::attach(machine, desk::displayOf(number++, "Any", flipped));
  }
}

RC_GTEST_PROP(DockMouseGuardProperty, EventsLeaveTheZoneThatMovedThemAndOthersAreUntouched, ()) {
  const Arrangement arrangement = *genArrangement();
  const bool blocksAll = *rc::gen::arbitrary<bool>();
  desk::MachineScope scope;
  desk::Machine& machine = scope.machine();
  machine.process.start();
  attachAll(machine, arrangement);
  machine.permission.setTrusted(true);
  desk::setDockOrientation(machine, std::string(nameOf(*genGuardedEdge())));
  std::optional<DockMouseGuard> guard;
  guard.emplace();
  guard->start("1", OrvaneModifier::option, blocksAll);
  machine.runDue();

  const std::vector<TriggerZone> zones = guard->snapshot().zones;
  std::int64_t blocked = 0;
  for (int count = 0; count < 30; ++count) {
    // Around a zone when there is one, in 64ths of a point.
    CGPoint place{*rc::gen::inRange(-4000, 4000) / 64.0, *rc::gen::inRange(-4000, 4000) / 64.0};
    if (!zones.empty()) {
      const CGRect& near = zones[*rc::gen::inRange<std::size_t>(0, zones.size())].rect;
      place.x = near.origin.x +
                *rc::gen::inRange(-64, static_cast<int>(near.size.width * 64) + 64) / 64.0;
      place.y = near.origin.y +
                *rc::gen::inRange(-64, static_cast<int>(near.size.height * 64) + 64) / 64.0;
    }
    const bool isHeld = *rc::gen::weightedElement<bool>({{4, false}, {1, true}});
    const auto hit = std::ranges::find_if(
        zones, [&](const TriggerZone& zone) { return isInside(zone.rect, place); });
    const CGPoint outcome = machine.mouse.post(place, isHeld ? 0x80000 : 0).value();
    if (isHeld || hit == zones.end()) {
      RC_ASSERT(outcome == place);
      continue;
    }
    ++blocked;
    RC_ASSERT(!isInside(hit->rect, outcome));
    RC_ASSERT(outcome == (CGPoint{place.x + hit->nudgeVector.dx, place.y + hit->nudgeVector.dy}));
  }
  RC_ASSERT(guard->snapshot().blockedCount == blocked);
  guard.reset();
  RC_ASSERT(scope.end().empty());
}

}  // namespace
}  // namespace orvane
