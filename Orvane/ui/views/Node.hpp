// A retained node: what of a view outlives a redraw. Nodes belong to the host; views never see
// them.
#pragma once

#include <any>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/ui/views/AnimatedValue.hpp"
#include "Orvane/ui/views/Element.hpp"
#include "Orvane/ui/views/Environment.hpp"
#include "Orvane/ui/views/State.hpp"

namespace orvane::ui {

// What a node is recognised by among its siblings: an explicit id, else its place.
struct NodeKey {
  int slot = 0;
  // The place inside a group that stands at the slot.
  int place = -1;
  std::string id;

  friend bool operator==(const NodeKey&, const NodeKey&) = default;
};

struct MeasuredSize {
  Proposal proposal;
  Size size;
};

struct Node {
  Node(std::uint64_t number, Node* owner) : id(number), parent(owner) {}

  const std::uint64_t id;
  Node* parent;
  NodeKey key;
  std::shared_ptr<const Element> element;
  std::shared_ptr<const Environment> environment;
  std::vector<std::unique_ptr<Node>> children;
  // Removed children that are still on their way out; drawn above the children.
  std::vector<std::unique_ptr<Node>> leaving;

  // True until the first layout after the node was made.
  bool isNew = true;
  // The animation of the update under way.
  std::optional<Curve> curve;

  std::shared_ptr<StateStore> states;
  // What the element's class keeps here for itself.
  std::any data;
  bool isPressed = false;

  std::vector<MeasuredSize> measured;
  // Place in the parent (x, y) and size (width, height), each on its way to where layout put it.
  std::array<AnimatedValue, 4> geometry;
  std::vector<AnimatedValue> attributes;
  // 1 while the node is there, 0 when it has gone; for nodes with a transition.
  AnimatedValue presence{1};

  // As presented last: from the node's coordinates to the host's, its size, what it painted.
  Transform toHost;
  Size size;
  // Whether what it draws itself is on its way, in place or in size; and what is in it, in place.
  bool isMoving = false;
  bool movesContent = false;
  Rect ink;
  Rect inkWithDescendants;
  std::uint64_t signature = 0;

  Rect target() const {
    return {geometry[0].target(), geometry[1].target(), geometry[2].target(), geometry[3].target()};
  }
  Rect frameAt(double now) const {
    return {geometry[0].at(now), geometry[1].at(now), std::max(0.0, geometry[2].at(now)),
            std::max(0.0, geometry[3].at(now))};
  }
  // As presented, in the host's coordinates.
  Rect hostFrame() const { return toHost.apply(Rect{0, 0, size.width, size.height}); }
};

// The node with the id in the tree below (the leaving ones left out), or null.
Node* findNode(Node* root, std::uint64_t id);

// The node with a transition at the top of the subtree: the node itself, or the only child of an
// only child. Null when there is none.
Node* transitionNode(Node& node);

// Calls the function for the node and everything below it, parents first, without leaving ones.
template <typename Visit>
void visitNodes(Node& node, const Visit& visit) {
  visit(node);
  for (const auto& child : node.children) {
    visitNodes(*child, visit);
  }
}

}  // namespace orvane::ui
