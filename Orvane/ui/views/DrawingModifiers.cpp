// The modifiers that change drawing and hit testing, but not layout.
#include <algorithm>

#include "Orvane/ui/views/Attributes.hpp"
#include "Orvane/ui/views/Modifiers.hpp"

namespace orvane::ui {

namespace {

class OpacityElement final : public ModifierElement {
 public:
  OpacityElement(View content, double opacity)
      : ModifierElement(std::move(content)), opacity_(std::clamp(opacity, 0.0, 1.0)) {}

  void attributes(const Node&, AttributeWriter& writer) const override { writer.number(opacity_); }
  Effect effect(const Node& node, Size, double now) const override {
    return {.opacity = AttributeReader(node, now).fraction()};
  }

 private:
  double opacity_;
};

class OffsetElement final : public ModifierElement {
 public:
  OffsetElement(View content, Point distance)
      : ModifierElement(std::move(content)), distance_(distance) {}

  void attributes(const Node&, AttributeWriter& writer) const override {
    writer.number(distance_.x);
    writer.number(distance_.y);
  }
  Effect effect(const Node& node, Size, double now) const override {
    AttributeReader reader(node, now);
    const double x = reader.number();
    return {.transform = Transform::translation({x, reader.number()})};
  }

 private:
  Point distance_;
};

class ScaleElement final : public ModifierElement {
 public:
  ScaleElement(View content, double factor, UnitPoint anchor)
      : ModifierElement(std::move(content)), factor_(factor), anchor_(anchor) {}

  void attributes(const Node&, AttributeWriter& writer) const override { writer.number(factor_); }
  Effect effect(const Node& node, Size size, double now) const override {
    const double factor = AttributeReader(node, now).number();
    const Point anchor = anchor_.in({0, 0, size.width, size.height});
    return {.transform = Transform::scale(factor, factor, anchor)};
  }

 private:
  double factor_;
  UnitPoint anchor_;
};

class ShadowElement final : public ModifierElement {
 public:
  ShadowElement(View content, const Shadow& shadow)
      : ModifierElement(std::move(content)), shadow_(shadow) {}

  void attributes(const Node&, AttributeWriter& writer) const override { writer.shadow(shadow_); }
  Effect effect(const Node& node, Size, double now) const override {
    const PaintShadow shadow = AttributeReader(node, now).shadow();
    return shadow.color.alpha > 0 ? Effect{.shadow = shadow} : Effect{};
  }

 private:
  Shadow shadow_;
};

class ClipElement final : public ModifierElement {
 public:
  ClipElement(View content, const ShapeForm& form)
      : ModifierElement(std::move(content)), form_(form) {}

  Effect effect(const Node&, Size size, double) const override {
    return {.clip = form_.in({0, 0, size.width, size.height})};
  }

 private:
  ShapeForm form_;
};

class HitTestingElement final : public ModifierElement {
 public:
  HitTestingElement(View content, bool isAllowed)
      : ModifierElement(std::move(content)), isAllowed_(isAllowed) {}

  Effect effect(const Node&, Size, double) const override {
    return {.allowsHitTesting = isAllowed_};
  }

 private:
  bool isAllowed_;
};

}  // namespace

View View::opacity(double opacity) const {
  return modified<OpacityElement>(*this, opacity);
}

View View::offset(double x, double y) const {
  return modified<OffsetElement>(*this, Point{x, y});
}

View View::scale(double factor, UnitPoint anchor) const {
  return modified<ScaleElement>(*this, factor, anchor);
}

View View::shadow(const Shadow& shadow) const {
  return modified<ShadowElement>(*this, shadow);
}

View View::clip(const ShapeForm& form) const {
  return modified<ClipElement>(*this, form);
}

View View::hitTesting(bool isAllowed) const {
  return modified<HitTestingElement>(*this, isAllowed);
}

}  // namespace orvane::ui
