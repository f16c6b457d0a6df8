// The simulated CFMachPort: the application's handle for an event tap.
#pragma once

#include <cstdint>

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Object.hpp"

// NOLINTNEXTLINE(bugprone-reserved-identifier): the platform's own name for it.
struct __CFMachPort final : orvane::desk::Object {
  explicit __CFMachPort(std::uint64_t tap)
      : Object(orvane::desk::ObjectKind::machPort), tapIdentity(tap) {}
  /// Removes the tap along with its port.
  void lastReferenceGone() override;

  /// The tap may end long before the port.
  const std::uint64_t tapIdentity;
  bool isValid = true;
};
