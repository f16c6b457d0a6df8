// The simulated CFUUID. It keeps the text with which the display was attached, in any form, so that
// scripts can use short ones.
#pragma once

#include <string>
#include <utility>

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Object.hpp"

// NOLINTNEXTLINE(bugprone-reserved-identifier): the platform's own name for it.
struct __CFUUID final : orvane::desk::Object {
  explicit __CFUUID(std::string content)
      : Object(orvane::desk::ObjectKind::uuid), text(std::move(content)) {}
  [[nodiscard]] std::string description() const override { return "CFUUID " + text; }

  const std::string text;
};
