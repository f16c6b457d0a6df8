// The immutable description behind a view: one class for each kind of view and modifier. An element
// has no state; what must survive an update is in its node.
#pragma once

#include <optional>
#include <vector>

#include "Orvane/ui/draw/Shadow.hpp"
#include "Orvane/ui/draw/Transform.hpp"
#include "Orvane/ui/layout/Proposal.hpp"
#include "Orvane/ui/views/Interaction.hpp"
#include "Orvane/ui/views/Semantics.hpp"

namespace orvane::ui {

class BuildPass;
struct AttributeWriter;
struct DrawContext;
struct LayoutPass;
struct Node;
struct Transition;

/// How a node and everything below it are presented. The clip and the transform are in the node's
/// own coordinates, whose origin is its top left corner.
struct Effect {
  Transform transform = {};
  double opacity = 1;
  std::optional<Shape> clip = std::nullopt;
  std::optional<PaintShadow> shadow = std::nullopt;
};

/// Each pass calls its functions; docs/ui.md says what they may read and change.
class Element {
 public:
  Element() = default;
  Element(const Element&) = default;
  Element& operator=(const Element&) = default;
  virtual ~Element() = default;

  /// Describes the node's children to the pass. None by default.
  virtual void build(Node&, BuildPass&) const {}

  /// The size chosen for a proposal, and the placement of the children for the same proposal. By
  /// default a node is as large as its first child.
  [[nodiscard]] virtual Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const;
  virtual void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const;

  /// Writes the numbers that can be animated; effect() and draw() read their values at a time.
  virtual void attributes(const Node&, AttributeWriter&) const {}
  [[nodiscard]] virtual Effect effect(const Node&, double /*now*/) const { return {}; }
  /// Draws what belongs to the node itself, below its children.
  virtual void draw(const Node&, const DrawContext&) const {}

  [[nodiscard]] virtual const Interaction& interaction() const;
  /// The node's part of the semantics tree, given that of its children.
  [[nodiscard]] virtual std::vector<SemanticsNode> semantics(
      const Node& node, std::vector<SemanticsNode> children) const;

  [[nodiscard]] virtual std::optional<Axis> stackAxis() const { return std::nullopt; }
  /// Stacks serve children of a higher priority first. Only spacers have a lower one than 0.
  [[nodiscard]] virtual double layoutPriority(const Node& node) const;
  [[nodiscard]] virtual const Transition* transition() const { return nullptr; }
};

}  // namespace orvane::ui
