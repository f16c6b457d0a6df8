// The simulated CFString: immutable text, always valid UTF-8.
#pragma once

#include <string>
#include <utility>

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Object.hpp"

// NOLINTNEXTLINE(bugprone-reserved-identifier): the platform's own name for it.
struct __CFString final : orvane::desk::Object {
  explicit __CFString(std::string content)
      : Object(orvane::desk::ObjectKind::string), text(std::move(content)) {}
  [[nodiscard]] std::string description() const override { return "CFString \"" + text + "\""; }

  const std::string text;
};

namespace orvane::desk {

/// The text of `string`; null, and a recorded fault, when it is not a string of the current
/// machine.
const std::string* textOf(CFStringRef string, const char* operation);

}  // namespace orvane::desk
