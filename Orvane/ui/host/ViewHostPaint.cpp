// The draw pass: draws the presented tree. Effects become layers, clips and transforms; a
// translation only moves the origin.
#include "Orvane/ui/draw/DrawContext.hpp"
#include "Orvane/ui/host/ViewHost.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

namespace {

// Skips nodes without ink in the dirty rectangle (host coordinates).
struct DrawPass {
  Canvas& canvas;
  double now;
  Rect dirty;

  // The origin is that of the parent's coordinates on the canvas, in its present transform.
  void visit(const Node& node, Point origin, bool snapsToPixels) const {
    if (!node.inkWithDescendants.intersects(dirty) || !node.toHost.isInvertible()) {
      return;
    }
    const Rect frame = node.frameAt(now);
    const Effect effect = node.element->effect(node, now);
    if (effect.opacity <= 0) {
      return;
    }
    const Point place = origin + frame.origin();
    const bool isLayer = effect.opacity < 1 || effect.shadow;
    if (isLayer) {
      const Rect bounds = node.toHost.inverse().apply(node.inkWithDescendants).movedBy(place);
      canvas.beginLayer(bounds, effect.opacity, effect.shadow);
    }
    const bool isScaled = !effect.transform.isTranslation();
    const bool saves = effect.clip || isScaled;
    if (saves) {
      canvas.save();
    }
    if (effect.clip) {
      Shape clip = *effect.clip;
      clip.rect = clip.rect.movedBy(place);
      canvas.clip(clip);
    }
    Point inner = place;
    if (isScaled) {
      const Point back{-place.x, -place.y};
      canvas.transform(Transform::translation(place)
                           .after(effect.transform)
                           .after(Transform::translation(back)));
    } else {
      inner = place + Point{effect.transform.x, effect.transform.y};
    }

    const bool snaps = snapsToPixels && !isScaled && !node.movesContent;
    node.trace.isDrawn = true;
    node.element->draw(
        node, DrawContext{canvas, now, Rect::from(inner, frame.size()), snaps && !node.isMoving});
    for (const auto& child : node.children) {
      visit(*child, inner, snaps);
    }
    for (const auto& child : node.leaving) {
      visit(*child, inner, snaps);
    }
    if (saves) {
      canvas.restore();
    }
    if (isLayer) {
      canvas.endLayer();
    }
  }
};

}  // namespace

void ViewHost::paint(Canvas& canvas, const Rect& dirty) const {
  if (!tree_.root) {
    return;
  }
  canvas.save();
  canvas.clip(Shape::rectangle(dirty));
  DrawPass{canvas, tree_.now, dirty}.visit(*tree_.root, {0, 0}, true);
  focus_.drawRing(canvas, appearance_, colors_);
  canvas.restore();
}

}  // namespace orvane::ui
