// PointerMovement is how one movement of the mouse ended.
#pragma once

#include <cstdint>

#include "Orvane/platform/Quartz.hpp"

namespace orvane::desk {

struct PointerMovement {
  enum class Outcome : std::uint8_t {
    /// There was nothing to move, or nowhere to move to.
    none,
    passed,
    /// A tap put the event elsewhere.
    movedBack,
    /// A tap swallowed the event.
    dropped,
  };

  Outcome outcome = Outcome::none;
  /// In global coordinates: where the displays let the movement end, and where it ended for what
  /// follows the taps.
  CGPoint wanted{};
  CGPoint reached{};
};

}  // namespace orvane::desk
