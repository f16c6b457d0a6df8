// Searching by id; hit testing, which follows the effects that the nodes are presented with; and
// keeping a handler alive during its call.
#include "Orvane/ui/host/RetainedTree.hpp"

#include <algorithm>

#include "Orvane/ui/host/SemanticsPass.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

namespace {

Node* findBelow(Node& node, std::uint64_t id) {
  if (node.id == id) {
    return &node;
  }
  for (const auto& child : node.children) {
    if (Node* found = findBelow(*child, id)) {
      return found;
    }
  }
  return nullptr;
}

// Children in reverse order before their parent.
void collectHits(Node& node, Point point, double now, std::vector<Node*>& hits) {
  if (!node.toHost.isInvertible()) {
    return;
  }
  const Effect effect = node.element->effect(node, now);
  const Point local = node.toHost.inverse().apply(point);
  const bool isCut = effect.clip && !effect.clip->rect.contains(local);
  if (effect.opacity <= 0 || isCut) {
    return;
  }
  for (auto child = node.children.rbegin(); child != node.children.rend(); ++child) {
    collectHits(**child, point, now, hits);
  }
  if (node.bounds().contains(local)) {
    hits.push_back(&node);
  }
}

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

Node* RetainedTree::find(std::uint64_t id) const {
  return root ? findBelow(*root, id) : nullptr;
}

std::vector<Node*> RetainedTree::hitTest(Point point) const {
  std::vector<Node*> hits;
  if (root) {
    collectHits(*root, point, now, hits);
  }
  return hits;
}

Node* RetainedTree::pressTarget(Point point) const {
  for (Node* node : hitTest(point)) {
    if (node->interaction().takesPress()) {
      return node;
    }
  }
  return nullptr;
}

std::optional<Tooltip> RetainedTree::tooltipAt(Point point) const {
  const std::vector<Node*> hits = hitTest(point);
  for (const Node* node : hits) {
    if (!node->interaction().tooltip.empty()) {
      return Tooltip{node->interaction().tooltip, node->hostFrame()};
    }
  }
  return fullText(hits, now);
}

bool RetainedTree::call(const std::function<void()>& handler) const {
  const std::shared_ptr<HostLink> host = link;
  if (const std::function<void()> kept = handler) {
    kept();
  }
  return host->isConnected();
}

bool RetainedTree::activate(std::uint64_t id) const {
  const Node* node = find(id);
  if (node == nullptr || !node->interaction().activate || !node->environment->isEnabled) {
    return false;
  }
  call([action = node->interaction().activate, frame = node->hostFrame()] { action(frame); });
  return true;
}

}  // namespace orvane::ui
