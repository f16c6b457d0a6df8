// The simulated CFRunLoop: the only instance, a constant, stands for the machine's run loop.
#pragma once

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Object.hpp"

// NOLINTNEXTLINE(bugprone-reserved-identifier): the platform's own name for it.
struct __CFRunLoop final : orvane::desk::Object {
  __CFRunLoop() : Object(orvane::desk::ObjectKind::runLoop) {}
};

namespace orvane::desk {

/// Removes every source of the port from the run loop.
void removeSourcesOf(CFMachPortRef port);

}  // namespace orvane::desk
