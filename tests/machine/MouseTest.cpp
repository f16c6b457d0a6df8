// The path of a movement through taps, pointer and Dock.
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "desk/machine/Mouse.hpp"
#include "tests/support/MachineFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane::desk {
namespace {

/// The events that the test's tap has received, and how it changes them.
struct TapScript {
  std::vector<__CGEvent> seen;
  double dy = 0;
  bool drops = false;
};

CGEventRef follow(CGEventTapProxy, CGEventType, CGEventRef event, void* userInfo) {
  auto& script = *static_cast<TapScript*>(userInfo);
  script.seen.push_back(*event);
  event->location.y += script.dy;
  return script.drops ? nullptr : event;
}

class MouseTest : public MachineFixture, private PointerListener {
 protected:
  MouseTest() {
    attach(machine, displayOf(1, "", {{0, 0}, {1000, 800}}));
    attach(machine, displayOf(2, "", {{1000, 0}, {1000, 800}}));
    const auto tap =
        machine.eventTaps.create(kCGTailAppendEventTap, kCGEventTapOptionDefault,
                                 CGEventMask{1} << kCGEventMouseMoved, follow, &script);
    machine.eventTaps.find(*tap)->sourceModes = RunLoop::commonModes;
    machine.mouse.setListener(this);
  }
  ~MouseTest() override { machine.mouse.setListener(nullptr); }

  TapScript script;
  std::vector<CGPoint> positions;

 private:
  void pointerMovedTo(CGPoint position) override { positions.push_back(position); }
};

TEST_F(MouseTest, AMovementBecomesAnEventAtTheClampedPositionWithTheHeldKeys) {
  machine.modifierKeys.hold(kCGEventFlagMaskShift | kCGEventFlagMaskCommand);
  machine.mouse.moveTo({500, 400});
  machine.mouse.moveBy(0, 900);
  ASSERT_EQ(script.seen.size(), 2U);
  EXPECT_EQ(script.seen[1].type, kCGEventMouseMoved);
  EXPECT_EQ(script.seen[1].location.y, 799);
  EXPECT_EQ(script.seen[1].flags, kCGEventFlagMaskShift | kCGEventFlagMaskCommand);
  machine.modifierKeys.releaseAll();
  machine.mouse.moveBy(0, -1);
  EXPECT_EQ(script.seen[2].flags, 0U);
}

TEST_F(MouseTest, ThePointerIsWhereTheTapsLeaveTheEvent) {
  script.dy = -12;
  const PointerMovement movement = machine.mouse.moveTo({500, 900});
  EXPECT_EQ(machine.pointer.location().y, 787);
  EXPECT_EQ(movement.outcome, PointerMovement::Outcome::movedBack);
  EXPECT_EQ(movement.wanted.y, 799);
  EXPECT_EQ(movement.reached.y, 787);
  EXPECT_EQ(machine.counters.relocatedEvents, 1);
  ASSERT_EQ(positions.size(), 1U);
  EXPECT_EQ(positions[0].y, 787);
}

TEST_F(MouseTest, AFreeCursorMovesEvenIfATapMovesBackOrDropsItsMovements) {
  machine.mouse.setCursor(Mouse::Cursor::free);
  machine.mouse.moveTo({1500, 400});
  script.dy = -12;
  machine.mouse.moveBy(0, 900);
  EXPECT_EQ(machine.pointer.location().y, 799);
  EXPECT_EQ(positions.back().y, 787) << "the others see the changed event";
  script.drops = true;
  machine.mouse.moveBy(-5, 0);
  EXPECT_EQ(machine.pointer.location().x, 1495);
  EXPECT_EQ(machine.dock.displayNumber(), 1U);
  EXPECT_EQ(positions.size(), 2U);
}

TEST_F(MouseTest, APositionOffAllDisplaysIsClampedAgain) {
  script.dy = 5000;
  machine.mouse.moveTo({500, 400});
  EXPECT_EQ(machine.pointer.location().x, 500);
  EXPECT_EQ(machine.pointer.location().y, 799);
}

TEST_F(MouseTest, AnInvalidPositionDoesNotMoveThePointer) {
  machine.mouse.moveTo({500, 400});
  script.dy = std::nan("");
  machine.mouse.moveTo({600, 500});
  EXPECT_EQ(machine.pointer.location().x, 500);
  EXPECT_EQ(machine.pointer.location().y, 400);
}

TEST_F(MouseTest, ADroppedMovementMovesNothing) {
  machine.mouse.moveTo({1500, 400});
  script.drops = true;
  const PointerMovement movement = machine.mouse.moveBy(0, 900);
  EXPECT_EQ(movement.outcome, PointerMovement::Outcome::dropped);
  EXPECT_EQ(movement.wanted.y, 799);
  EXPECT_EQ(movement.reached.y, 400);
  EXPECT_EQ(machine.pointer.location().y, 400);
  EXPECT_EQ(machine.dock.displayNumber(), 1U);
  EXPECT_EQ(machine.counters.droppedEvents, 1);
  EXPECT_EQ(positions.size(), 1U);
}

TEST_F(MouseTest, ANonFiniteMovementIsIgnored) {
  EXPECT_EQ(machine.mouse.moveBy(std::nan(""), 0).outcome, PointerMovement::Outcome::none);
  EXPECT_EQ(machine.mouse.moveBy(0, INFINITY).outcome, PointerMovement::Outcome::none);
  EXPECT_TRUE(script.seen.empty());
  EXPECT_EQ(machine.counters.hardwareMovements, 0);
}

TEST_F(MouseTest, WithoutADisplayThereAreNoPointerEvents) {
  ASSERT_FALSE(machine.displays.detach(1));
  ASSERT_FALSE(machine.displays.detach(2));
  machine.mouse.moveBy(5, 5);
  EXPECT_TRUE(script.seen.empty());
}

TEST_F(MouseTest, APostedEventRunsThroughTheTapsAndMovesNoPointer) {
  script.dy = -12;
  const auto out = machine.mouse.post({5000, 90}, kCGEventFlagMaskControl);
  ASSERT_TRUE(out);
  EXPECT_EQ(out->x, 5000);
  EXPECT_EQ(out->y, 78);
  EXPECT_EQ(script.seen[0].flags, kCGEventFlagMaskControl);
  EXPECT_EQ(machine.pointer.location().y, 0);
  EXPECT_TRUE(positions.empty());
  script.drops = true;
  EXPECT_EQ(machine.mouse.post({1, 1}, 0), std::nullopt);
}

}  // namespace
}  // namespace orvane::desk
