// PointerListener hears where the pointer is after each of its movements.
#pragma once

#include "Orvane/platform/Quartz.hpp"

namespace orvane::desk {

class PointerListener {
 public:
  virtual ~PointerListener() = default;
  /// In global coordinates.
  virtual void pointerMovedTo(CGPoint place) = 0;
};

}  // namespace orvane::desk
