// The simulated CFMachPort: what the application holds of an event tap.
#pragma once

#include <cstdint>

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Object.hpp"

// NOLINTNEXTLINE(bugprone-reserved-identifier): the platform's own name for it.
struct __CFMachPort final : orvane::desk::Object {
  explicit __CFMachPort(std::uint64_t tap)
      : Object(orvane::desk::ObjectKind::machPort), tapIdentity(tap) {}
  /// A port that nobody holds any more takes its tap along.
  void lastReferenceGone() override;

  /// The tap may be dead long before the port.
  const std::uint64_t tapIdentity;
  bool isValid = true;
};
