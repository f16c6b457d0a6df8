// The semantics tree as text.
#include "Orvane/ui/views/Semantics.hpp"

namespace orvane::ui {

namespace {

void describe(const SemanticsNode& node, std::size_t depth, std::string& text) {
  text += std::string(depth * 2, ' ') + roleName(node.role);
  if (!node.label.empty()) {
    text += " \"" + node.label + "\"";
  }
  if (!node.value.empty()) {
    text += " = \"" + node.value + "\"";
  }
  text += node.isSelected ? " selected" : "";
  text += node.isEnabled ? "" : " disabled";
  text += node.isFocused ? " focused" : "";
  text += "\n";
  for (const SemanticsNode& child : node.children) {
    describe(child, depth + 1, text);
  }
}

}  // namespace

const char* roleName(Role role) {
  switch (role) {
    case Role::group:
      return "group";
    case Role::staticText:
      return "text";
    case Role::heading:
      return "heading";
    case Role::image:
      return "image";
    case Role::button:
      return "button";
    case Role::toggle:
      return "toggle";
    case Role::radioButton:
      return "radio button";
    case Role::popUpButton:
      return "pop-up button";
    case Role::link:
      return "link";
    case Role::scrollArea:
      return "scroll area";
  }
  return "";
}

std::string describeSemantics(const SemanticsNode& root) {
  std::string text;
  describe(root, 0, text);
  return text;
}

}  // namespace orvane::ui
