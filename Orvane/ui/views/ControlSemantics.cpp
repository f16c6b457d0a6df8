// Building the semantics tree from the retained tree.
#include "Orvane/ui/views/ControlSemantics.hpp"

namespace orvane::ui {

namespace {

void append(const std::string& text, std::string& list) {
  if (!text.empty()) {
    list += (list.empty() ? "" : ", ") + text;
  }
}

void appendTexts(const SemanticsNode& node, SemanticsNode& control) {
  append(node.label, control.label);
  append(node.cutText, control.cutText);
  for (const SemanticsNode& child : node.children) {
    appendTexts(child, control);
  }
}

// By then everything that moves has arrived, in seconds.
constexpr double longestMotion = 3600;

std::vector<SemanticsNode> collect(const Node& node, double settled) {
  if (node.element->effect(node, node.size, settled).opacity <= 0) {
    // What is fading out is not there any more for anyone, and what is fading in is there already.
    return {};
  }
  std::vector<SemanticsNode> children;
  for (const auto& child : node.children) {
    for (SemanticsNode& described : collect(*child, settled)) {
      children.push_back(std::move(described));
    }
  }
  return node.element->semantics(node, std::move(children));
}

void markFocus(SemanticsNode& node, std::uint64_t focusedId) {
  node.isFocused = focusedId != 0 && node.id == focusedId;
  for (SemanticsNode& child : node.children) {
    markFocus(child, focusedId);
  }
}

}  // namespace

SemanticsNode controlSemantics(const Node& node, Role role, const Interaction& interaction,
                               const std::vector<SemanticsNode>& contents) {
  SemanticsNode result;
  result.id = node.id;
  result.role = role;
  result.isEnabled = node.environment->isEnabled;
  result.isFocusable = interaction.isFocusable;
  result.frame = node.hostFrame();
  result.actions = {SemanticsAction::press};
  for (const SemanticsNode& content : contents) {
    appendTexts(content, result);
  }
  return result;
}

std::vector<SemanticsNode> describedBy(const Node& node, double now) {
  return collect(node, now + longestMotion);
}

SemanticsNode collectSemantics(const Node& root, double now, std::uint64_t focusedId) {
  SemanticsNode result;
  result.id = root.id;
  result.frame = root.hostFrame();
  result.children = describedBy(root, now);
  markFocus(result, focusedId);
  return result;
}

}  // namespace orvane::ui
