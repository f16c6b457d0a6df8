// Looking for a tooltip under the pointer.
#include "Orvane/ui/host/Tooltip.hpp"

#include <algorithm>

#include "Orvane/ui/host/HitTest.hpp"
#include "Orvane/ui/host/SemanticsPass.hpp"

namespace orvane::ui {

namespace {

std::optional<Tooltip> fullText(const std::vector<Node*>& hits, double now) {
  const auto takesPress = [](const Node* node) { return node->interaction().takesPress(); };
  const auto control = std::ranges::find_if(hits, takesPress);
  for (const Node* node : control != hits.end() ? std::vector<Node*>{*control} : hits) {
    if (!node->children.empty() && !takesPress(node)) {
      continue;
    }
    for (const SemanticsNode& element : semanticsOf(*node, now)) {
      if (!element.cutText.empty()) {
        return Tooltip{element.cutText, node->hostFrame()};
      }
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<Tooltip> tooltipAt(const RetainedTree& tree, Point point) {
  const std::vector<Node*> hits = hitTest(tree, point);
  for (const Node* node : hits) {
    if (!node->interaction().tooltip.empty()) {
      return Tooltip{node->interaction().tooltip, node->hostFrame()};
    }
  }
  return fullText(hits, tree.now);
}

}  // namespace orvane::ui
