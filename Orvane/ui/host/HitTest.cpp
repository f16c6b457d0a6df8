// Hit testing follows the effects that the nodes are presented with.
#include "Orvane/ui/host/HitTest.hpp"

#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

namespace {

// Children in reverse order before their parent.
void collectHits(Node& node, Point point, double now, std::vector<Node*>& hits) {
  if (!node.toHost.isInvertible()) {
    return;
  }
  const Effect effect = node.element->effect(node, node.size, now);
  const bool isCut = effect.clip && !effect.clip->rect.contains(node.toHost.inverse().apply(point));
  if (effect.opacity <= 0 || !effect.allowsHitTesting || isCut) {
    return;
  }
  for (auto child = node.children.rbegin(); child != node.children.rend(); ++child) {
    collectHits(**child, point, now, hits);
  }
  if (covers(node, point)) {
    hits.push_back(&node);
  }
}

}  // namespace

bool covers(const Node& node, Point point) {
  return node.toHost.isInvertible() &&
         Rect{0, 0, node.size.width, node.size.height}.contains(node.toHost.inverse().apply(point));
}

std::vector<Node*> hitTest(const RetainedTree& tree, Point point) {
  std::vector<Node*> hits;
  if (tree.root) {
    collectHits(*tree.root, point, tree.now, hits);
  }
  return hits;
}

Node* pressTarget(const RetainedTree& tree, Point point) {
  for (Node* node : hitTest(tree, point)) {
    if (node->interaction().takesPress()) {
      return node;
    }
  }
  return nullptr;
}

}  // namespace orvane::ui
