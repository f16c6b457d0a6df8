// The modifiers that give a view behaviour.
#include "Orvane/ui/views/ControlSemantics.hpp"
#include "Orvane/ui/views/WrapperElement.hpp"

namespace orvane::ui {

namespace {

class InteractionElement final : public WrapperElement {
 public:
  InteractionElement(View content, Interaction interaction)
      : WrapperElement(std::move(content)), interaction_(std::move(interaction)) {}

  const Interaction* interaction() const override { return &interaction_; }

  std::vector<SemanticsNode> semantics(const Node& node,
                                       std::vector<SemanticsNode> children) const override {
    if (!interaction_.activate) {
      return children;
    }
    return {controlSemantics(node, Role::button, interaction_, children)};
  }

 private:
  Interaction interaction_;
};

std::function<void(const Activation&)> withoutActivation(std::function<void()> action) {
  if (!action) {
    return nullptr;
  }
  return [action = std::move(action)](const Activation&) { action(); };
}

}  // namespace

View View::onTap(std::function<void()> action) const {
  Interaction interaction;
  interaction.activate = withoutActivation(std::move(action));
  return modified<InteractionElement>(*this, std::move(interaction));
}

View View::onHover(std::function<void(bool isInside)> handler) const {
  Interaction interaction;
  interaction.hover = std::move(handler);
  return modified<InteractionElement>(*this, std::move(interaction));
}

View View::tooltip(std::string text) const {
  Interaction interaction;
  interaction.tooltip = std::move(text);
  return modified<InteractionElement>(*this, std::move(interaction));
}

View View::focusable(std::function<void()> action, ShapeForm ring) const {
  Interaction interaction;
  interaction.activate = withoutActivation(std::move(action));
  interaction.isFocusable = true;
  interaction.focusShape = ring;
  return modified<InteractionElement>(*this, std::move(interaction));
}

View View::dragSource(std::function<std::optional<DragItem>()> item) const {
  Interaction interaction;
  interaction.drag = std::move(item);
  return modified<InteractionElement>(*this, std::move(interaction));
}

}  // namespace orvane::ui
