// The names of the unlock modifiers in the interface.
#include "Orvane/panels/settings/ShortcutText.hpp"

namespace orvane {

std::string_view shortcutText(OrvaneModifier modifier) {
  switch (modifier) {
    case OrvaneModifier::control:
      return "⌃ Control";
    case OrvaneModifier::shift:
      return "⇧ Shift";
    case OrvaneModifier::command:
      return "⌘ Command";
    case OrvaneModifier::option:
      break;
  }
  return "⌥ Option";
}

}  // namespace orvane
