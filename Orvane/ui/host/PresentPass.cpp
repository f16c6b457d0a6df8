// A node is damaged when the fingerprint of its drawing, in place, differs from the previous one.
#include "Orvane/ui/host/PresentPass.hpp"

#include "Orvane/ui/draw/DrawContext.hpp"
#include "Orvane/ui/draw/InkProbe.hpp"

namespace orvane::ui {

namespace {

bool isPlaceMoving(const Node& node, double now) {
  return node.geometry[0].isMoving(now) || node.geometry[1].isMoving(now);
}

bool isSizeMoving(const Node& node, double now) {
  return node.geometry[2].isMoving(now) || node.geometry[3].isMoving(now);
}

// The effects of all ancestors.
struct Inherited {
  Transform toHost = {};
  double opacity = 1;
  // How far the ancestors' shadows extend beyond what is painted.
  Edges reach = {};
  // In host coordinates; none without a limit.
  std::optional<Rect> clip = std::nullopt;
  std::uint64_t fingerprint = emptyFingerprint;
  bool isMoving = false;
};

struct PresentPass {
  double now;
  Damage& damage;
  bool isMoving = false;

  void visit(Node& node, const Inherited& outer) {
    const bool isChanging = settle(node);
    isMoving = isMoving || isChanging;

    const Rect frame = node.frameAt(now);
    node.size = frame.size();
    node.toHost = outer.toHost.after(Transform::translation(frame.origin()));
    const Inherited inner = through(node, outer, isChanging);
    node.movesContent = inner.isMoving;
    node.isMoving = inner.isMoving || isSizeMoving(node, now);
    updateInk(node, inner);
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

  Inherited through(const Node& node, const Inherited& outer, bool isChanging) const {
    const Effect effect = node.element->effect(node, now);
    Inherited inner = outer;
    inner.toHost = node.toHost.after(effect.transform);
    // Neither a changing colour or opacity nor a changing size moves the content.
    inner.isMoving = outer.isMoving || isPlaceMoving(node, now) ||
                     (isChanging && !(effect.transform == Transform{}));
    inner.opacity = outer.opacity * effect.opacity;
    mixInto(inner.fingerprint, effect.opacity);
    if (effect.shadow) {
      const Edges reach = effect.shadow->reach();
      const double scale = node.toHost.scale;
      inner.reach.top += reach.top * scale;
      inner.reach.leading += reach.leading * scale;
      inner.reach.bottom += reach.bottom * scale;
      inner.reach.trailing += reach.trailing * scale;
      mixInto(inner.fingerprint, *effect.shadow);
    }
    if (effect.clip) {
      // The ancestors' shadows extend beyond this clip.
      const Rect visible = node.toHost.apply(effect.clip->rect).outset(outer.reach);
      inner.clip = outer.clip ? outer.clip->intersection(visible) : visible;
      mixInto(inner.fingerprint, *inner.clip);
      mixInto(inner.fingerprint, effect.clip->cornerRadius);
    }
    return inner;
  }

  void updateInk(Node& node, const Inherited& inner) {
    const Rect local = node.bounds();
    Rect ink;
    std::uint64_t fingerprint = 0;
    if (inner.opacity > 0) {
      InkProbe probe(local);
      node.element->draw(node, DrawContext{probe, now, local, false});
      if (!probe.ink().isEmpty()) {
        // One point more, for edges between pixels.
        ink = inner.toHost.apply(probe.ink()).inset(-1).outset(inner.reach);
        ink = inner.clip ? ink.intersection(*inner.clip) : ink;
        fingerprint = probe.fingerprint();
        mixInto(fingerprint, inner.fingerprint);
        const Transform& place = inner.toHost;
        mixInto(fingerprint, {place.scale, place.x, place.y, node.isMoving ? 1.0 : 0.0});
      }
    }
    node.trace.isDamaged = fingerprint != node.fingerprint;
    node.trace.isDrawn = false;
    if (node.trace.isDamaged) {
      damage.add(node.ink);
      damage.add(ink);
    }
    node.fingerprint = fingerprint;
    node.ink = ink;
  }

  bool settle(Node& node) {
    bool moves = false;
    const auto check = [&](AnimatedValue& value) {
      if (node.environment->appearance.reduceMotion) {
        value.jump(value.target());
      }
      value.settle(now);
      moves = moves || value.isMoving(now);
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

  void removeGone(Node& node) {
    std::erase_if(node.leaving, [&](const std::unique_ptr<Node>& child) {
      const Node* transitioning = transitionNode(*child);
      const bool isGone = transitioning == nullptr || !transitioning->presence.isMoving(now);
      if (isGone) {
        damage.add(child->inkWithDescendants);
      }
      return isGone;
    });
  }
};

}  // namespace

bool present(Node& root, double now, Damage& damage) {
  PresentPass pass{now, damage};
  pass.visit(root, {});
  return pass.isMoving;
}

}  // namespace orvane::ui
