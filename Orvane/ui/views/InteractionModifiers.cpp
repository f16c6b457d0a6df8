// The modifiers that give a view handlers or a tooltip.
#include "Orvane/ui/views/Modifiers.hpp"

namespace orvane::ui {

namespace {

struct InteractionElement final : ModifierElement<Interaction> {
  [[nodiscard]] const Interaction& interaction() const override { return value; }
};

}  // namespace

View View::onHover(std::function<void(bool isInside)> handler) const {
  return modified<InteractionElement>(*this, Interaction{.hover = std::move(handler)});
}

View View::tooltip(std::string text) const {
  return modified<InteractionElement>(*this, Interaction{.tooltip = std::move(text)});
}

View View::dragSource(std::function<std::optional<DragRequest>()> request) const {
  return modified<InteractionElement>(*this, Interaction{.drag = std::move(request)});
}

View View::onAppear(std::function<void()> action) const {
  return modified<InteractionElement>(*this, Interaction{.appear = std::move(action)});
}

}  // namespace orvane::ui
