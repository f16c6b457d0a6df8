// Comparing fingerprints of what each node paints, in place, with those of the presentation before.
#include "Orvane/ui/host/Presenter.hpp"

#include "Orvane/ui/draw/DrawContext.hpp"
#include "Orvane/ui/draw/InkProbe.hpp"

namespace orvane::ui {

namespace {

Edges scaled(const Edges& edges, const Transform& transform) {
  return {edges.top * transform.scaleY, edges.leading * transform.scaleX,
          edges.bottom * transform.scaleY, edges.trailing * transform.scaleX};
}

void mixTransform(std::uint64_t& fingerprint, const Transform& transform) {
  mixInto(fingerprint, transform.scaleX);
  mixInto(fingerprint, transform.scaleY);
  mixInto(fingerprint, transform.x);
  mixInto(fingerprint, transform.y);
}

bool isPlaceMoving(const Node& node, double now) {
  return node.geometry[0].isMoving(now) || node.geometry[1].isMoving(now);
}

bool isSizeMoving(const Node& node, double now) {
  return node.geometry[2].isMoving(now) || node.geometry[3].isMoving(now);
}

}  // namespace

void Presenter::present(Node& root) {
  Inherited nothing;
  nothing.fingerprint = emptyFingerprint;
  visit(root, nothing);
}

void Presenter::visit(Node& node, const Inherited& outer) {
  const bool isChanging = settle(node);
  isMoving_ = isMoving_ || isChanging;

  const Rect frame = node.frameAt(now_);
  node.size = frame.size();
  node.toHost = outer.toHost.after(Transform::translation(frame.origin()));
  const Inherited inner = through(node, outer, isChanging);
  node.movesContent = inner.isMoving;
  node.isMoving = inner.isMoving || isSizeMoving(node, now_);
  note(node, inner);
  node.inkWithDescendants = node.ink;
  for (const auto& child : node.children) {
    visit(*child, inner);
    node.inkWithDescendants = node.inkWithDescendants.united(child->inkWithDescendants);
  }
  for (const auto& child : node.leaving) {
    visit(*child, inner);
  }
  removeGone(node);
  for (const auto& child : node.leaving) {
    node.inkWithDescendants = node.inkWithDescendants.united(child->inkWithDescendants);
  }
}

Presenter::Inherited Presenter::through(const Node& node, const Inherited& outer,
                                        bool isChanging) const {
  const Effect effect = node.element->effect(node, node.size, now_);
  Inherited inner = outer;
  inner.toHost = node.toHost.after(effect.transform);
  // A change of opacity or of colour moves nothing, nor does one of size move what is inside.
  inner.isMoving = outer.isMoving || isPlaceMoving(node, now_) ||
                   (isChanging && !(effect.transform == Transform{}));
  inner.opacity = outer.opacity * effect.opacity;
  mixInto(inner.fingerprint, effect.opacity);
  if (effect.shadow) {
    const Edges reach = scaled(effect.shadow->reach(), node.toHost);
    inner.reach = {inner.reach.top + reach.top, inner.reach.leading + reach.leading,
                   inner.reach.bottom + reach.bottom, inner.reach.trailing + reach.trailing};
    mixInto(inner.fingerprint, *effect.shadow);
  }
  if (effect.clip) {
    // What casts a shadow is cut first; the shadow reaches beyond the cut.
    const Rect visible = node.toHost.apply(effect.clip->rect).outset(outer.reach);
    inner.clip = outer.clip ? outer.clip->intersection(visible) : visible;
    mixInto(inner.fingerprint, *inner.clip);
    mixInto(inner.fingerprint, effect.clip->cornerRadius);
  }
  return inner;
}

void Presenter::note(Node& node, const Inherited& inner) {
  const Rect local{0, 0, node.size.width, node.size.height};
  Rect ink;
  std::uint64_t signature = 0;
  if (inner.opacity > 0) {
    InkProbe probe(local);
    node.element->draw(node, DrawContext{probe, now_, local, false});
    if (!probe.ink().isEmpty()) {
      // A point around it for the edges that fall between pixels.
      ink = inner.toHost.apply(probe.ink()).inset(-1).outset(inner.reach);
      ink = inner.clip ? ink.intersection(*inner.clip) : ink;
      signature = probe.fingerprint();
      mixInto(signature, inner.fingerprint);
      mixTransform(signature, inner.toHost);
      mixInto(signature, node.isMoving ? 1.0 : 0.0);
    }
  }
  if (signature != node.signature) {
    for (const Rect& area : {node.ink, ink}) {
      if (!area.isEmpty()) {
        dirty_.push_back(area);
      }
    }
  }
  node.signature = signature;
  node.ink = ink;
}

bool Presenter::settle(Node& node) {
  bool moves = false;
  const auto check = [&](AnimatedValue& value) {
    // Whatever started the motion, those who want none see its end.
    if (node.environment->appearance.reduceMotion) {
      value.jump(value.target());
    }
    value.settle(now_);
    moves = moves || value.isMoving(now_);
  };
  for (AnimatedValue& value : node.geometry) {
    check(value);
  }
  for (AnimatedValue& value : node.attributes) {
    check(value);
  }
  check(node.presence);
  return moves;
}

void Presenter::removeGone(Node& node) {
  std::erase_if(node.leaving, [&](const std::unique_ptr<Node>& child) {
    Node* moved = transitionNode(*child);
    const bool isGone = moved == nullptr || !moved->presence.isMoving(now_);
    if (isGone && !child->inkWithDescendants.isEmpty()) {
      dirty_.push_back(child->inkWithDescendants);
    }
    return isGone;
  });
}

}  // namespace orvane::ui
