// The simulated event behind CGEventRef: a small value on the stack of the code that delivers it.
#pragma once

#include "Orvane/platform/Quartz.hpp"

// NOLINTNEXTLINE(bugprone-reserved-identifier): the platform's own name for it.
struct __CGEvent {
  CGEventType type;
  CGEventFlags flags;
  /// In global coordinates.
  CGPoint location;
};
