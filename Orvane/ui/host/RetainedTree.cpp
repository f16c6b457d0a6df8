// Searching the tree, and keeping a handler alive during its call.
#include "Orvane/ui/host/RetainedTree.hpp"

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

}  // namespace

Node* RetainedTree::find(std::uint64_t id) const {
  return root && id != 0 ? findBelow(*root, id) : nullptr;
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
  call([action = node->interaction().activate, frame = node->hostFrame()] { action({frame}); });
  return true;
}

}  // namespace orvane::ui
