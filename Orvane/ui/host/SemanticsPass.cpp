// Children before parents, so that an element can combine what is in it.
#include "Orvane/ui/host/SemanticsPass.hpp"

#include <utility>

#include "Orvane/ui/host/ViewHost.hpp"

namespace orvane::ui {

namespace {

// In seconds; every animation is shorter.
constexpr double longestAnimation = 3600;

std::vector<SemanticsNode> collect(const Node& node, double end) {
  // A view that fades out is gone already, and one that fades in is there.
  if (node.element->effect(node, end).opacity <= 0) {
    return {};
  }
  std::vector<SemanticsNode> children;
  for (const auto& child : node.children) {
    for (SemanticsNode& element : collect(*child, end)) {
      children.push_back(std::move(element));
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

std::vector<SemanticsNode> semanticsOf(const Node& node, double now) {
  return collect(node, now + longestAnimation);
}

SemanticsNode ViewHost::semantics() const {
  SemanticsNode tree{.frame = {0, 0, size_.width, size_.height}};
  if (tree_.root) {
    tree.id = tree_.root->id;
    tree.children = semanticsOf(*tree_.root, tree_.now);
    markFocus(tree, focus_.id());
  }
  return tree;
}

}  // namespace orvane::ui
