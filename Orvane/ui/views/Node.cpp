// The place and the element of a node, and the node that a transition applies to.
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

bool Node::covers(Point point) const {
  return toHost.isInvertible() &&
         Rect{0, 0, size.width, size.height}.contains(toHost.inverse().apply(point));
}

SemanticsNode Node::semantics(Role role) const {
  SemanticsNode result;
  result.id = id;
  result.role = role;
  result.isEnabled = environment->isEnabled;
  result.frame = hostFrame();
  return result;
}

Node* transitionNode(Node& node) {
  Node* current = &node;
  while (current->element->transition() == nullptr) {
    if (current->children.size() != 1) {
      return nullptr;
    }
    current = current->children.front().get();
  }
  return current;
}

}  // namespace orvane::ui
