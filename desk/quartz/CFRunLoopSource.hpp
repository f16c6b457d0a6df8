// The simulated CFRunLoopSource, which retains its port.
#pragma once

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Object.hpp"

// NOLINTNEXTLINE(bugprone-reserved-identifier): the platform's own name for it.
struct __CFRunLoopSource final : orvane::desk::Object {
  explicit __CFRunLoopSource(CFMachPortRef source);
  /// Releases the port.
  void lastReferenceGone() override;

  const CFMachPortRef port;
};
