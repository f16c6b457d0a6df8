// SessionFixture gives each test a session with two displays.
#pragma once

#include <gtest/gtest.h>

#include "showroom/window/DeskSession.hpp"

namespace orvane::showroom {

class SessionFixture : public testing::Test {
 protected:
  static constexpr std::int64_t second = desk::Clock::nanosecondsPerSecond;

  /// Moves the pointer there with one movement.
  void moveTo(double x, double y) {
    const CGPoint place = session.machine().pointer.location();
    session.movePointerBy(x - place.x, y - place.y);
  }
  /// Presses `times` times against the lower edge of the right display.
  void pressRightDisplay(int times) {
    moveTo(1500, 600);
    for (int time = 0; time < times; ++time) {
      session.movePointerBy(0, 60);
      session.advance(second / 20);
    }
  }

  /// Pins the Dock to the main display or unpins it, as the menu does.
  void pinOrUnpin() {
    session.application().model().refreshDisplays();
    session.application().model().toggleSelectedDisplayLock();
    session.machine().runDue();
  }

  DeskSession session{2};
};

}  // namespace orvane::showroom
