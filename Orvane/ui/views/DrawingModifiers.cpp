// The modifiers that change drawing, but not layout.
#include <algorithm>

#include "Orvane/ui/views/Attributes.hpp"
#include "Orvane/ui/views/Modifiers.hpp"

namespace orvane::ui {

namespace {

// A modifier of one effect. `Values` writes the attributes and makes the effect from them.
template <typename Values>
struct EffectElement final : ModifierElement<Values> {
  void attributes(const Node&, AttributeWriter& writer) const override {
    this->value.write(writer);
  }
  [[nodiscard]] Effect effect(const Node& node, double now) const override {
    AttributeReader reader{node, now};
    return this->value.effect(reader, node.bounds());
  }
};

struct Opacity {
  double opacity;

  void write(AttributeWriter& writer) const { writer.numbers({std::clamp(opacity, 0.0, 1.0)}); }
  [[nodiscard]] Effect effect(AttributeReader& reader, const Rect&) const {
    return {.opacity = reader.fraction()};
  }
};

struct Offset {
  Point distance;

  void write(AttributeWriter& writer) const { writer.numbers({distance.x, distance.y}); }
  [[nodiscard]] Effect effect(AttributeReader& reader, const Rect&) const {
    return {.transform = Transform::translation({reader.number(), reader.number()})};
  }
};

struct Scale {
  double factor;

  void write(AttributeWriter& writer) const { writer.numbers({factor}); }
  [[nodiscard]] Effect effect(AttributeReader& reader, const Rect& bounds) const {
    return {.transform = Transform::scaling(reader.number(), bounds.center())};
  }
};

struct CastShadow {
  Shadow shadow;

  void write(AttributeWriter& writer) const { writer.shadow(shadow); }
  [[nodiscard]] Effect effect(AttributeReader& reader, const Rect&) const {
    const PaintShadow present = reader.shadow();
    return present.color.alpha > 0 ? Effect{.shadow = present} : Effect{};
  }
};

struct Clip {
  Shape shape;

  void write(AttributeWriter&) const {}
  [[nodiscard]] Effect effect(AttributeReader&, const Rect& bounds) const {
    return {.clip = shape.in(bounds)};
  }
};

}  // namespace

View View::opacity(double opacity) const {
  return modified<EffectElement<Opacity>>(*this, Opacity{opacity});
}

View View::offset(double x, double y) const {
  return modified<EffectElement<Offset>>(*this, Offset{{x, y}});
}

View View::scale(double factor) const {
  return modified<EffectElement<Scale>>(*this, Scale{factor});
}

View View::shadow(const Shadow& shadow) const {
  return modified<EffectElement<CastShadow>>(*this, CastShadow{shadow});
}

View View::clip(const Shape& shape) const {
  return modified<EffectElement<Clip>>(*this, Clip{shape});
}

}  // namespace orvane::ui
