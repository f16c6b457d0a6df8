// The simulated CFRunLoop: a handle for the machine's run loop. There is one, a constant.
#pragma once

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Object.hpp"

// NOLINTNEXTLINE(bugprone-reserved-identifier): the platform's own name for it.
struct __CFRunLoop final : orvane::desk::Object {
  __CFRunLoop() : Object(orvane::desk::ObjectKind::runLoop) {}
};

namespace orvane::desk {

/// Takes every source of the port out of the run loop.
void removeSourcesOf(CFMachPortRef port);

}  // namespace orvane::desk
