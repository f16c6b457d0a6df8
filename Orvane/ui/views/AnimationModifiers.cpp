// The modifiers for change over time: animations, transitions and identity.
#include <algorithm>

#include "Orvane/ui/views/Modifiers.hpp"

namespace orvane::ui {

namespace {

struct Animation {
  std::optional<Curve> curve;
  std::any value;
  bool (*areEqual)(const std::any&, const std::any&);
};

struct AnimationElement final : ModifierElement<Animation> {
  void build(Node& node, BuildPass& pass) const override {
    if (node.data.has_value() && !value.areEqual(node.data, value.value)) {
      node.curve = value.curve;
    }
    node.data = value.value;
    ModifierElement::build(node, pass);
  }
};

struct TransitionElement final : ModifierElement<Transition> {
  [[nodiscard]] const Transition* transition() const override { return &value; }

  [[nodiscard]] Effect effect(const Node& node, double now) const override {
    const double presence = node.presence.at(now);
    const double absence = 1 - presence;
    const double scale = presence + value.absentScale * absence;
    const double delay = value.opacityDelay;
    const double fading = std::max(0.0, presence - delay) / (1 - delay);
    const Point center{node.size.width / 2, node.size.height / 2};
    const Point movement{node.size.width * value.absentOffset * absence, 0};
    return {.transform = Transform::translation(movement).after(Transform::scaling(scale, center)),
            .opacity = std::clamp(fading + value.absentOpacity * (1 - fading), 0.0, 1.0)};
  }
};

}  // namespace

View View::animationOn(const std::optional<Curve>& curve, std::any value,
                       bool (*areEqual)(const std::any&, const std::any&)) const {
  return modified<AnimationElement>(*this, Animation{curve, std::move(value), areEqual});
}

View View::transition(const Transition& transition) const {
  return modified<TransitionElement>(*this, transition);
}

View View::id(std::string id) const {
  View result = *this;
  result.id_ = std::move(id);
  return result;
}

}  // namespace orvane::ui
