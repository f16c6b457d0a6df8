// The modifiers about change over time: animations, transitions, coming and going.
#include <algorithm>

#include "Orvane/ui/host/Builder.hpp"
#include "Orvane/ui/views/LifecycleElement.hpp"
#include "Orvane/ui/views/WrapperElement.hpp"

namespace orvane::ui {

namespace {

class AnimationElement final : public WrapperElement {
 public:
  AnimationElement(View content, const std::optional<Curve>& curve, EquatableValue value)
      : WrapperElement(std::move(content)), curve_(curve), value_(std::move(value)) {}

  void build(Node& node, Builder& builder) const override {
    const auto* previous = std::any_cast<EquatableValue>(&node.data);
    const bool hasChanged = previous != nullptr && !(*previous == value_);
    node.data = value_;
    if (hasChanged) {
      node.curve = curve_;
      const Builder::CurveScope scope(builder, curve_);
      WrapperElement::build(node, builder);
    } else {
      WrapperElement::build(node, builder);
    }
  }

 private:
  std::optional<Curve> curve_;
  EquatableValue value_;
};

class TransitionElement final : public WrapperElement {
 public:
  TransitionElement(View content, const Transition& transition)
      : WrapperElement(std::move(content)), transition_(transition) {}

  const Transition* transition() const override { return &transition_; }

  Effect effect(const Node& node, Size size, double now) const override {
    const double presence = node.presence.at(now);
    const double absence = 1 - presence;
    const double scale = presence + transition_.absentScale * absence;
    const Rect rect{0, 0, size.width, size.height};
    Effect effect;
    const double delay = transition_.opacityDelay;
    const double fading = std::max(0.0, presence - delay) / (1 - delay);
    effect.opacity = std::clamp(fading + transition_.absentOpacity * (1 - fading), 0.0, 1.0);
    effect.transform = Transform::translation(movedBy(size, absence))
                           .after(Transform::scale(scale, scale, rect.center()));
    return effect;
  }

 private:
  Point movedBy(Size size, double absence) const {
    if (!transition_.moveEdge) {
      return {};
    }
    switch (*transition_.moveEdge) {
      case Edge::top:
        return {0, -size.height * absence};
      case Edge::leading:
        return {-size.width * absence, 0};
      case Edge::bottom:
        return {0, size.height * absence};
      case Edge::trailing:
        return {size.width * absence, 0};
    }
    return {};
  }

  Transition transition_;
};

}  // namespace

View View::animationOn(const std::optional<Curve>& curve, EquatableValue value) const {
  return modified<AnimationElement>(*this, curve, std::move(value));
}

View View::transition(const Transition& transition) const {
  return modified<TransitionElement>(*this, transition);
}

View View::id(std::string id) const {
  View result = *this;
  result.id_ = std::move(id);
  return result;
}

View View::onAppear(std::function<void()> action) const {
  return modified<LifecycleElement>(*this, std::move(action));
}

}  // namespace orvane::ui
