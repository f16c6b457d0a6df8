// The simulated CFRunLoopSource: it keeps the port that it was made for.
#pragma once

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Object.hpp"

// NOLINTNEXTLINE(bugprone-reserved-identifier): the platform's own name for it.
struct __CFRunLoopSource final : orvane::desk::Object {
  /// Takes a reference of its own to the port.
  explicit __CFRunLoopSource(CFMachPortRef source);
  /// Gives the port back.
  void lastReferenceGone() override;

  const CFMachPortRef port;
};
