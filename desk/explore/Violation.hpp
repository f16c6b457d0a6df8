// Violation describes an invariant that did not hold.
#pragma once

#include <optional>
#include <string>

namespace orvane::desk::explore {

struct Violation {
  /// A short name of the invariant.
  std::string invariant;
  /// What was observed.
  std::string text;
  /// What a script would expect instead, as `THING.PATH VALUE`; empty if a script cannot.
  std::string expectation = {};
};

/// The violation that the first failing check returns; the checks after it are not made.
template <typename... Checks>
[[nodiscard]] std::optional<Violation> firstOf(const Checks&... checks) {
  std::optional<Violation> found;
  static_cast<void>(((found = checks()).has_value() || ...));
  return found;
}

}  // namespace orvane::desk::explore
