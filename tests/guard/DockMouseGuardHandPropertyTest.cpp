// The guard keeps the Dock in place under random movements on random displays, whether or not the
// cursor follows a changed event.
#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/guard/DockMouseGuard.hpp"
#include "desk/machine/MachineScope.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {
namespace {

using Cursor = desk::Mouse::Cursor;

bool overlap(const CGRect& first, const CGRect& second) {
  return CGRectGetMinX(first) < CGRectGetMaxX(second) &&
         CGRectGetMinX(second) < CGRectGetMaxX(first) &&
         CGRectGetMinY(first) < CGRectGetMaxY(second) &&
         CGRectGetMinY(second) < CGRectGetMaxY(first);
}

/// One to four displays, each beside, above or below an earlier one. Frames in window-system
/// coordinates.
std::vector<CGRect> drawDisplays() {
  std::vector<CGRect> frames = {{{0, 0}, {400, 300}}};
  const int wanted = *rc::gen::inRange(0, 4);
  for (int count = 0; count < wanted; ++count) {
    const CGRect& anchor = frames[*rc::gen::inRange<std::size_t>(0, frames.size())];
    const CGSize size{static_cast<double>(*rc::gen::inRange(100, 500)),
                      static_cast<double>(*rc::gen::inRange(100, 400))};
    const double slide = *rc::gen::inRange(-90, 300);
    CGRect frame{{anchor.origin.x + slide, anchor.origin.y + slide}, size};
    switch (*rc::gen::inRange(0, 4)) {
      case 0:
        frame.origin.x = CGRectGetMaxX(anchor);
        break;
      case 1:
        frame.origin.x = anchor.origin.x - size.width;
        break;
      case 2:
        frame.origin.y = CGRectGetMaxY(anchor);
        break;
      default:
        frame.origin.y = anchor.origin.y - size.height;
    }
    if (std::ranges::none_of(frames, [&](const CGRect& other) { return overlap(frame, other); })) {
      frames.push_back(frame);
    }
  }
  return frames;
}

/// Moves in one direction for a while, perhaps pressing against an edge.
void moveHand(desk::Machine& machine) {
  const double dx = *rc::gen::element(0, 0, 3, -3, 40, -40, 300, -300);
  const double dy = *rc::gen::element(0, 0, 3, -3, 40, -40, 300, -300);
  const int times = *rc::gen::inRange(1, 12);
  for (int count = 0; count < times; ++count) {
    machine.mouse.moveBy(dx, dy);
    // Less than 180 blocks in two seconds.
    machine.advance(0.02);
  }
}

void setUp(desk::Machine& machine, Cursor cursor) {
  machine.process.start();
  std::uint32_t number = 1;
  for (const CGRect& frame : drawDisplays()) {
    desk::attach(machine, desk::displayOf(number++, "Any", frame));
  }
  machine.mouse.moveTo({200, 150});
  machine.mouse.setCursor(cursor);
  machine.permission.setTrusted(true);
  desk::setDockOrientation(machine, *rc::gen::element<std::string>("bottom", "left", "right"));
}

/// Moves a while, and checks after each movement that the Dock is where the guard keeps it.
void moveWhileGuarded(Cursor cursor, bool blocksAllDisplays) {
  desk::MachineScope scope;
  desk::Machine& machine = scope.machine();
  setUp(machine, cursor);
  if (blocksAllDisplays) {
    desk::setDockAutoHide(machine, true);
  }
  DockMouseGuard guard;
  guard.start("1", OrvaneModifier::option, blocksAllDisplays);
  for (int count = 0; count < 30; ++count) {
    moveHand(machine);
    if (blocksAllDisplays) {
      RC_ASSERT(machine.dock.reveals().empty());
    } else {
      RC_ASSERT(machine.dock.displayNumber() == 1U);
    }
    RC_ASSERT(machine.counters.droppedEvents == 0);
    RC_ASSERT(guard.isRunning() == !guard.snapshot().zones.empty());
  }
}

RC_GTEST_PROP(DockMouseGuardHandProperty, APinnedDockStaysWithAHeldCursor, ()) {
  moveWhileGuarded(Cursor::held, false);
}
RC_GTEST_PROP(DockMouseGuardHandProperty, APinnedDockStaysWithAFreeCursor, ()) {
  moveWhileGuarded(Cursor::free, false);
}
RC_GTEST_PROP(DockMouseGuardHandProperty, APreventedDockStaysDownWithAHeldCursor, ()) {
  moveWhileGuarded(Cursor::held, true);
}
RC_GTEST_PROP(DockMouseGuardHandProperty, APreventedDockStaysDownWithAFreeCursor, ()) {
  moveWhileGuarded(Cursor::free, true);
}

}  // namespace
}  // namespace orvane
