// A semantics tree as text.
#pragma once

#include <string>

#include "Orvane/ui/views/Semantics.hpp"

namespace orvane::ui {

// One element per line, indented by depth: role, label in quotes, value, states.
inline std::string semanticsText(const SemanticsNode& node, std::size_t depth = 0) {
  std::string text = std::string(depth * 2, ' ') + roleName(node.role);
  text += node.label.empty() ? "" : " \"" + node.label + "\"";
  text += node.value.empty() ? "" : " = \"" + node.value + "\"";
  text += node.isSelected ? " selected" : "";
  text += node.isEnabled ? "" : " disabled";
  text += node.isFocused ? " focused" : "";
  text += "\n";
  for (const SemanticsNode& child : node.children) {
    text += semanticsText(child, depth + 1);
  }
  return text;
}

}  // namespace orvane::ui
