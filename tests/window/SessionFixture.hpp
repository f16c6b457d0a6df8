// A session of two displays, and what is often done in it.
#pragma once

#include <gtest/gtest.h>

#include "showroom/window/DeskSession.hpp"

namespace orvane::showroom {

class SessionFixture : public testing::Test {
 protected:
  static constexpr std::int64_t second = desk::Clock::nanosecondsPerSecond;

  /// Brings the pointer there by one movement of the hand.
  void moveTo(double x, double y) {
    const CGPoint place = session.machine().pointer.location();
    session.movePointerBy(x - place.x, y - place.y);
  }
  /// Presses so often against the lower edge of the display on the right.
  void pressRightDisplay(int times) {
    moveTo(1500, 600);
    for (int time = 0; time < times; ++time) {
      session.movePointerBy(0, 60);
      session.advance(second / 20);
    }
  }

  /// Pins the Dock to the main display, or lets go of it, as the menu does.
  void pinOrUnpin() {
    session.application().model().refreshDisplays();
    session.application().model().toggleSelectedDisplayLock();
    session.machine().runDue();
  }

  [[nodiscard]] std::uint32_t dockDisplay() const {
    return session.machine().dock.displayNumber().value_or(0);
  }

  DeskSession session{2};
};

}  // namespace orvane::showroom
