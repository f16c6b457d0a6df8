// PointerMovement is the result of one movement of the mouse.
#pragma once

#include <cstdint>

#include "Orvane/platform/Quartz.hpp"

namespace orvane::desk {

struct PointerMovement {
  enum class Outcome : std::uint8_t {
    /// There was no display, or the goal was not finite.
    none,
    passed,
    /// A tap changed the event's location.
    movedBack,
    /// A tap dropped the event.
    dropped,
  };

  Outcome outcome = Outcome::none;
  /// In global coordinates: where the movement would have ended on the displays, and where it ended
  /// after the taps.
  CGPoint wanted{};
  CGPoint reached{};
};

}  // namespace orvane::desk
