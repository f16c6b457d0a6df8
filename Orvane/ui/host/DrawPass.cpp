// Effects become layers, clips and transforms; a translation only moves the origin.
#include "Orvane/ui/host/DrawPass.hpp"

#include "Orvane/ui/draw/DrawContext.hpp"

namespace orvane::ui {

void DrawPass::visit(const Node& node, Point origin, bool snapsToPixels) {
  if (!node.inkWithDescendants.intersects(dirty_) || !node.toHost.isInvertible()) {
    return;
  }
  const Rect frame = node.frameAt(now_);
  const Effect effect = node.element->effect(node, now_);
  if (effect.opacity <= 0) {
    return;
  }
  const Point place = origin + frame.origin();
  const bool isLayer = effect.opacity < 1 || effect.shadow;
  if (isLayer) {
    const Rect bounds = node.toHost.inverse().apply(node.inkWithDescendants).movedBy(place);
    canvas_.beginLayer(bounds, effect.opacity, effect.shadow);
  }
  const bool isScaled = !effect.transform.isTranslation();
  const bool saves = effect.clip || isScaled;
  if (saves) {
    canvas_.save();
  }
  if (effect.clip) {
    Shape clip = *effect.clip;
    clip.rect = clip.rect.movedBy(place);
    canvas_.clip(clip);
  }
  Point inner = place;
  if (isScaled) {
    const Point back{-place.x, -place.y};
    canvas_.transform(
        Transform::translation(place).after(effect.transform).after(Transform::translation(back)));
  } else {
    inner = place + Point{effect.transform.x, effect.transform.y};
  }

  const bool snaps = snapsToPixels && !isScaled && !node.movesContent;
  node.trace.isDrawn = true;
  node.element->draw(
      node, DrawContext{canvas_, now_, Rect::from(inner, frame.size()), snaps && !node.isMoving});
  for (const auto& child : node.children) {
    visit(*child, inner, snaps);
  }
  for (const auto& child : node.leaving) {
    visit(*child, inner, snaps);
  }
  if (saves) {
    canvas_.restore();
  }
  if (isLayer) {
    canvas_.endLayer();
  }
}

}  // namespace orvane::ui
