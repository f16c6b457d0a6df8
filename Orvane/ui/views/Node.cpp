// Finding the node that a transition applies to.
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

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
