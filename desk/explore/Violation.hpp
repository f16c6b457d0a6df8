// Violation is something that must never be and was.
#pragma once

#include <string>

namespace orvane::desk::explore {

struct Violation {
  /// Which promise is broken: one word.
  std::string promise;
  /// How, in words.
  std::string text;
  /// What a script would expect instead, as `THING.PATH VALUE`; empty when it cannot say it.
  std::string expectation = {};
};

}  // namespace orvane::desk::explore
