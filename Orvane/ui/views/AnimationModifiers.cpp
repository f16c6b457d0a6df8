// The modifiers for change over time: animations and transitions.
#include <algorithm>

#include "Orvane/ui/views/Modifiers.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

namespace {

class AnimationElement final : public ModifierElement {
 public:
  AnimationElement(View content, const std::optional<Curve>& curve, std::any value,
                   bool (*areEqual)(const std::any&, const std::any&))
      : ModifierElement(std::move(content)),
        curve_(curve),
        value_(std::move(value)),
        areEqual_(areEqual) {}

  void build(Node& node, BuildPass& pass) const override {
    if (node.data.has_value() && !areEqual_(node.data, value_)) {
      node.curve = curve_;
    }
    node.data = value_;
    ModifierElement::build(node, pass);
  }

 private:
  std::optional<Curve> curve_;
  std::any value_;
  bool (*areEqual_)(const std::any&, const std::any&);
};

class TransitionElement final : public ModifierElement {
 public:
  TransitionElement(View content, const Transition& transition)
      : ModifierElement(std::move(content)), transition_(transition) {}

  [[nodiscard]] const Transition* transition() const override { return &transition_; }

  [[nodiscard]] Effect effect(const Node& node, Size size, double now) const override {
    const double presence = node.presence.at(now);
    const double absence = 1 - presence;
    const double scale = presence + transition_.absentScale * absence;
    const double delay = transition_.opacityDelay;
    const double fading = std::max(0.0, presence - delay) / (1 - delay);
    const Rect rect{0, 0, size.width, size.height};
    return {.transform = Transform::translation(movement(size, absence))
                             .after(Transform::scale(scale, scale, rect.center())),
            .opacity = std::clamp(fading + transition_.absentOpacity * (1 - fading), 0.0, 1.0)};
  }

 private:
  [[nodiscard]] Point movement(Size size, double absence) const {
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

View View::animationOn(const std::optional<Curve>& curve, std::any value,
                       bool (*areEqual)(const std::any&, const std::any&)) const {
  return modified<AnimationElement>(*this, curve, std::move(value), areEqual);
}

View View::transition(const Transition& transition) const {
  return modified<TransitionElement>(*this, transition);
}

}  // namespace orvane::ui
