// The immutable description behind a view: each kind of primitive view and of modifier is one class
// derived from it. An element has no state; what must outlive a redraw is in its node.
#pragma once

#include <optional>
#include <vector>

#include "Orvane/ui/draw/Shadow.hpp"
#include "Orvane/ui/draw/Transform.hpp"
#include "Orvane/ui/layout/Proposal.hpp"
#include "Orvane/ui/views/Interaction.hpp"
#include "Orvane/ui/views/Semantics.hpp"

namespace orvane::ui {

class AttributeWriter;
class Builder;
class LayoutPass;
struct DrawContext;
struct Node;
struct Transition;

// What a node does to itself and everything below it when it is presented. The shape and the
// transform are in the node's own coordinates, whose origin is its top left corner.
struct Effect {
  Transform transform;
  double opacity = 1;
  std::optional<Shape> clip;
  std::optional<PaintShadow> shadow;
  bool allowsHitTesting = true;
};

class Element {
 public:
  Element() = default;
  Element(const Element&) = default;
  Element& operator=(const Element&) = default;
  virtual ~Element() = default;

  // Describes the node's children to the builder. By default there are none.
  virtual void build(Node& node, Builder& builder) const;

  // The size chosen for a proposal, and the placing of the children for the same proposal. By
  // default a node is as large as its first child.
  virtual Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const;
  virtual void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const;

  // Writes the animatable numbers; the drawing functions below read them as they are at a moment.
  virtual void attributes(const Node& node, AttributeWriter& writer) const;
  virtual Effect effect(const Node& node, Size size, double now) const;
  // Draws what is the node's own, beneath its children.
  virtual void draw(const Node& node, const DrawContext& context) const;

  // Empty (null) for a view without behaviour.
  virtual const Interaction* interaction() const;
  // What the node contributes to the semantics tree, given what its children do.
  virtual std::vector<SemanticsNode> semantics(const Node& node,
                                               std::vector<SemanticsNode> children) const;

  virtual std::optional<Axis> stackAxis() const { return std::nullopt; }
  virtual double layoutPriority(const Node& node) const;
  virtual const Transition* transition() const { return nullptr; }
};

}  // namespace orvane::ui
