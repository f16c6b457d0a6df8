// The simulated Core Foundation objects, under the platform's own names for them.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Object.hpp"

// NOLINTBEGIN(bugprone-reserved-identifier)

/// Immutable text, always valid UTF-8.
struct __CFString final : orvane::desk::Object {
  explicit __CFString(std::string content)
      : Object(orvane::desk::ObjectKind::string), text(std::move(content)) {}
  [[nodiscard]] std::string description() const override { return "CFString \"" + text + "\""; }

  const std::string text;
};

/// There are only two, and they are constants.
struct __CFBoolean final : orvane::desk::Object {
  explicit __CFBoolean(bool truth) : Object(orvane::desk::ObjectKind::boolean), value(truth) {}

  const bool value;
};

/// The application only checks whether a value is a string, so there is no function to read it.
struct __CFNumber final : orvane::desk::Object {
  explicit __CFNumber(double number) : Object(orvane::desk::ObjectKind::number), value(number) {}

  const double value;
};

/// It keeps the text with which the display was attached, in any form, so that scripts can use
/// short ones.
struct __CFUUID final : orvane::desk::Object {
  explicit __CFUUID(std::string content)
      : Object(orvane::desk::ObjectKind::uuid), text(std::move(content)) {}
  [[nodiscard]] std::string description() const override { return "CFUUID " + text; }

  const std::string text;
};

/// The application's handle for an event tap.
struct __CFMachPort final : orvane::desk::Object {
  explicit __CFMachPort(std::uint64_t tap)
      : Object(orvane::desk::ObjectKind::machPort), tapIdentity(tap) {}
  /// Removes the tap along with its port.
  void lastReferenceGone() override;

  /// The tap may end long before the port.
  const std::uint64_t tapIdentity;
  bool isValid = true;
};

/// The only instance, a constant, stands for the machine's run loop.
struct __CFRunLoop final : orvane::desk::Object {
  __CFRunLoop() : Object(orvane::desk::ObjectKind::runLoop) {}
};

/// It retains its port.
struct __CFRunLoopSource final : orvane::desk::Object {
  explicit __CFRunLoopSource(CFMachPortRef source);
  /// Releases the port.
  void lastReferenceGone() override;

  const CFMachPortRef port;
};

// NOLINTEND(bugprone-reserved-identifier)

namespace orvane::desk {

/// The text of `string`; null, and a recorded fault, when it is not a string of the current
/// machine.
const std::string* textOf(CFStringRef string, const char* operation);

/// Null, and a recorded fault, when it is not a port of the current machine.
__CFMachPort* portBehind(CFMachPortRef port, const char* operation);

/// Removes every source of the port from the run loop.
void removeSourcesOf(CFMachPortRef port);

}  // namespace orvane::desk
