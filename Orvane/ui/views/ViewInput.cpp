// The modifiers that give a view behaviour.
#include "Orvane/ui/views/WrapperElement.hpp"

namespace orvane::ui {

namespace {

class InteractionElement final : public WrapperElement {
 public:
  InteractionElement(View content, Interaction interaction)
      : WrapperElement(std::move(content)), interaction_(std::move(interaction)) {}

  const Interaction* interaction() const override { return &interaction_; }

 private:
  Interaction interaction_;
};

}  // namespace

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

View View::dragSource(std::function<std::optional<DragItem>()> item) const {
  Interaction interaction;
  interaction.drag = std::move(item);
  return modified<InteractionElement>(*this, std::move(interaction));
}

}  // namespace orvane::ui
