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

std::string_view OrvaneModifier::shortcutText() const {
  switch (value_) {
    case control:
      return "⌃ Control";
    case shift:
      return "⇧ Shift";
    case command:
      return "⌘ Command";
    case option:
      break;
  }
  return "⌥ Option";
}

}  // namespace orvane
