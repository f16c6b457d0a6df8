// PointerListener is notified of pointer movements, the button and the wheel.
#pragma once

#include "Orvane/platform/Quartz.hpp"

namespace orvane::desk {

/// Places are in global coordinates.
class PointerListener {
 public:
  virtual ~PointerListener() = default;
  virtual void pointerMovedTo(CGPoint place) = 0;
  virtual void buttonPressedAt(CGPoint /*place*/) {}
  virtual void buttonReleasedAt(CGPoint /*place*/) {}
  /// Distances in points; positive ones towards the end of the content.
  virtual void wheelTurnedAt(CGPoint /*place*/, double /*horizontal*/, double /*vertical*/) {}
};

}  // namespace orvane::desk
