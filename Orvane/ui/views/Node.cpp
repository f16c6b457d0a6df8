// Searching the retained tree.
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

Node* findNode(Node* root, std::uint64_t id) {
  if (root == nullptr || id == 0) {
    return nullptr;
  }
  if (root->id == id) {
    return root;
  }
  for (const auto& child : root->children) {
    if (Node* found = findNode(child.get(), id)) {
      return found;
    }
  }
  return nullptr;
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
