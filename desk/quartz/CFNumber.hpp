// The simulated CFNumber. The application only checks whether a value is a string, so there is no
// function to read it.
#pragma once

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Object.hpp"

// NOLINTNEXTLINE(bugprone-reserved-identifier): the platform's own name for it.
struct __CFNumber final : orvane::desk::Object {
  explicit __CFNumber(double number) : Object(orvane::desk::ObjectKind::number), value(number) {}

  const double value;
};
