// A retained node: the part of a view that survives an update. Nodes belong to the host; elements
// keep their data in them, and views never see them.
#pragma once

#include <any>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Orvane/ui/views/AnimatedValue.hpp"
#include "Orvane/ui/views/Element.hpp"
#include "Orvane/ui/views/Environment.hpp"
#include "Orvane/ui/views/State.hpp"

namespace orvane::ui {

/// Identifies a node among its siblings: by an explicit id, otherwise by place.
using NodeKey = std::pair<int, std::string>;

/// What each pass did with a node last, for dumpTree().
struct PassTrace {
  bool isMade = false;
  bool hasNewAttributes = false;
  bool isMoved = false;
  bool isResized = false;
  bool isDamaged = false;
  /// Since the last presentation. Drawing changes nothing else in a node.
  mutable bool isDrawn = false;
};

struct Node {
  Node(std::uint64_t number, Node* owner) : id(number), parent(owner) {}

  const std::uint64_t id;
  Node* parent;
  NodeKey key;
  std::shared_ptr<const Element> element;
  /// What the views below inherit.
  std::shared_ptr<const Environment> environment;
  std::vector<std::unique_ptr<Node>> children;
  /// Removed children during their transition; drawn above the children.
  std::vector<std::unique_ptr<Node>> leaving;

  /// True until the first layout.
  bool isNew = true;
  /// The animation of the last update.
  std::optional<Curve> curve;

  std::shared_ptr<StateStore> states;
  /// Belongs to the element's class.
  std::any data;
  bool isPressed = false;

  std::vector<std::pair<Proposal, Size>> measured;
  /// Origin (x, y) in the parent and size (width, height), whose targets layout sets.
  std::array<AnimatedValue, 4> geometry;
  std::vector<AnimatedValue> attributes;
  /// 1 for a present node, 0 for one that is gone; for nodes with a transition.
  AnimatedValue presence{1};

  /// The last presentation: the transform to host coordinates, the size, and the painted area with
  /// and without that of the nodes below.
  Transform toHost;
  Size size;
  Rect ink;
  Rect inkWithDescendants;
  /// Identifies what is painted and where.
  std::uint64_t fingerprint = 0;
  /// Whether the node's own drawing is moving or being resized, and whether its content moves.
  bool isMoving = false;
  bool movesContent = false;

  PassTrace trace;

  [[nodiscard]] const Interaction& interaction() const { return element->interaction(); }
  [[nodiscard]] Rect targetFrame() const {
    return {geometry[0].target(), geometry[1].target(), geometry[2].target(), geometry[3].target()};
  }
  [[nodiscard]] Rect frameAt(double now) const {
    return {geometry[0].at(now), geometry[1].at(now), std::max(0.0, geometry[2].at(now)),
            std::max(0.0, geometry[3].at(now))};
  }
  /// As presented, in the node's own coordinates and in those of the host.
  [[nodiscard]] Rect bounds() const { return Rect::from({0, 0}, size); }
  [[nodiscard]] Rect hostFrame() const { return toHost.apply(bounds()); }
  /// Whether the point (host coordinates) is in the node's rectangle, as presented.
  [[nodiscard]] bool covers(Point point) const {
    return toHost.isInvertible() && bounds().contains(toHost.inverse().apply(point));
  }
  /// An element of the semantics tree for this node, without a label.
  [[nodiscard]] SemanticsNode semantics(Role role) const {
    return {.id = id, .role = role, .isEnabled = environment->isEnabled, .frame = hostFrame()};
  }
};

/// The node with a transition at the top of the subtree: the node itself, or the only child of an
/// only child. Null when there is none.
[[nodiscard]] inline Node* transitionNode(Node& node) {
  if (node.element->transition() != nullptr) {
    return &node;
  }
  return node.children.size() == 1 ? transitionNode(*node.children.front()) : nullptr;
}

/// Calls the function for the node and all below it except leaving ones, parents first.
template <typename Visit>
void visitNodes(Node& node, const Visit& visit) {
  visit(node);
  for (const auto& child : node.children) {
    visitNodes(*child, visit);
  }
}

}  // namespace orvane::ui
