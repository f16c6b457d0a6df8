// Searches of a semantics tree.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "Orvane/ui/views/Semantics.hpp"

namespace orvane::desk {

/// All elements for which `isWanted` is true, in reading order: parents before children.
template <typename Predicate>
[[nodiscard]] std::vector<ui::SemanticsNode> findElements(const ui::SemanticsNode& root,
                                                          const Predicate& isWanted) {
  std::vector<ui::SemanticsNode> found;
  const auto visit = [&](const auto& self, const ui::SemanticsNode& node) -> void {
    if (isWanted(node)) {
      found.push_back(node);
    }
    for (const ui::SemanticsNode& child : node.children) {
      self(self, child);
    }
  };
  visit(visit, root);
  return found;
}

/// The first of them; none when there is none.
template <typename Predicate>
[[nodiscard]] std::optional<ui::SemanticsNode> findElement(const ui::SemanticsNode& root,
                                                           const Predicate& isWanted) {
  if (isWanted(root)) {
    return root;
  }
  for (const ui::SemanticsNode& child : root.children) {
    if (auto found = findElement(child, isWanted)) {
      return found;
    }
  }
  return std::nullopt;
}

/// The first element with that label; none when there is none.
[[nodiscard]] inline std::optional<ui::SemanticsNode> findLabel(const ui::SemanticsNode& root,
                                                                std::string_view label) {
  return findElement(root, [label](const ui::SemanticsNode& node) { return node.label == label; });
}

/// The first control with that label, enabled or not; none when there is none.
[[nodiscard]] inline std::optional<ui::SemanticsNode> findControl(const ui::SemanticsNode& root,
                                                                  std::string_view label) {
  return findElement(root, [label](const ui::SemanticsNode& node) {
    return node.isControl && node.label == label;
  });
}

/// All controls, enabled or not.
[[nodiscard]] inline std::vector<ui::SemanticsNode> findControls(const ui::SemanticsNode& root) {
  return findElements(root, [](const ui::SemanticsNode& node) { return node.isControl; });
}

}  // namespace orvane::desk
