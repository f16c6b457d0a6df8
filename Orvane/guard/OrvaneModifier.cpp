// The modifier key that unlocks the guard while it is held.
#include "Orvane/guard/OrvaneModifier.hpp"

namespace orvane {

std::string_view OrvaneModifier::rawValue() const {
  switch (value_) {
    case control:
      return "control";
    case shift:
      return "shift";
    case command:
      return "command";
    case option:
      break;
  }
  return "option";
}

OrvaneModifier OrvaneModifier::fromRawValue(std::string_view rawValue) {
  for (const OrvaneModifier modifier : allCases) {
    if (modifier.rawValue() == rawValue) {
      return modifier;
    }
  }
  return option;
}

}  // namespace orvane
