// The modifiers that change drawing and hit testing, but not layout.
#include <algorithm>

#include "Orvane/ui/views/Attributes.hpp"
#include "Orvane/ui/views/WrapperElement.hpp"

namespace orvane::ui {

namespace {

class OpacityElement final : public WrapperElement {
 public:
  OpacityElement(View content, double opacity)
      : WrapperElement(std::move(content)), opacity_(std::clamp(opacity, 0.0, 1.0)) {}

  void attributes(const Node&, AttributeWriter& writer) const override { writer.number(opacity_); }
  Effect effect(const Node& node, Size, double now) const override {
    Effect effect;
    effect.opacity = AttributeReader(node, now).fraction();
    return effect;
  }

 private:
  double opacity_;
};

class OffsetElement final : public WrapperElement {
 public:
  OffsetElement(View content, Point distance)
      : WrapperElement(std::move(content)), distance_(distance) {}

  void attributes(const Node&, AttributeWriter& writer) const override {
    writer.number(distance_.x);
    writer.number(distance_.y);
  }
  Effect effect(const Node& node, Size, double now) const override {
    AttributeReader reader(node, now);
    const double x = reader.number();
    Effect effect;
    effect.transform = Transform::translation({x, reader.number()});
    return effect;
  }

 private:
  Point distance_;
};

class ScaleElement final : public WrapperElement {
 public:
  ScaleElement(View content, double factor, UnitPoint anchor)
      : WrapperElement(std::move(content)), factor_(factor), anchor_(anchor) {}

  void attributes(const Node&, AttributeWriter& writer) const override { writer.number(factor_); }
  Effect effect(const Node& node, Size size, double now) const override {
    const double factor = AttributeReader(node, now).number();
    Effect effect;
    effect.transform =
        Transform::scale(factor, factor, anchor_.in({0, 0, size.width, size.height}));
    return effect;
  }

 private:
  double factor_;
  UnitPoint anchor_;
};

class ShadowElement final : public WrapperElement {
 public:
  ShadowElement(View content, const Shadow& shadow)
      : WrapperElement(std::move(content)), shadow_(shadow) {}

  void attributes(const Node&, AttributeWriter& writer) const override { writer.shadow(shadow_); }
  Effect effect(const Node& node, Size, double now) const override {
    const PaintShadow shadow = AttributeReader(node, now).shadow();
    Effect effect;
    if (shadow.color.alpha > 0) {
      effect.shadow = shadow;
    }
    return effect;
  }

 private:
  Shadow shadow_;
};

class ClipElement final : public WrapperElement {
 public:
  ClipElement(View content, const Shape& shape)
      : WrapperElement(std::move(content)), shape_(shape) {}

  Effect effect(const Node&, Size size, double) const override {
    Effect effect;
    effect.clip = shape_.in({0, 0, size.width, size.height});
    return effect;
  }

 private:
  Shape shape_;
};

class HitTestingElement final : public WrapperElement {
 public:
  HitTestingElement(View content, bool isAllowed)
      : WrapperElement(std::move(content)), isAllowed_(isAllowed) {}

  Effect effect(const Node&, Size, double) const override {
    Effect effect;
    effect.allowsHitTesting = isAllowed_;
    return effect;
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

View View::clip(const Shape& shape) const {
  return modified<ClipElement>(*this, shape);
}

View View::hitTesting(bool isAllowed) const {
  return modified<HitTestingElement>(*this, isAllowed);
}

}  // namespace orvane::ui
