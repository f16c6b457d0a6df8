// The simulated CFBoolean: there are only two, and they are constants.
#pragma once

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Object.hpp"

// NOLINTNEXTLINE(bugprone-reserved-identifier): the platform's own name for it.
struct __CFBoolean final : orvane::desk::Object {
  explicit __CFBoolean(bool truth) : Object(orvane::desk::ObjectKind::boolean), value(truth) {}

  const bool value;
};
