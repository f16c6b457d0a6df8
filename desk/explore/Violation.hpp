// Violation describes an invariant that did not hold.
#pragma once

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

}  // namespace orvane::desk::explore
