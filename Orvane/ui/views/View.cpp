// Building the elements with one child: modifiers and composite views.
#include "Orvane/ui/views/View.hpp"

#include "Orvane/ui/host/BuildPass.hpp"
#include "Orvane/ui/views/Modifiers.hpp"

namespace orvane::ui {

View View::id(std::string id) const {
  View result = *this;
  result.id_ = std::move(id);
  return result;
}

void ModifierElement::build(Node& node, BuildPass& pass) const {
  pass.children(node, {&content_, 1}, node.environment);
}

void ComponentElement::build(Node& node, BuildPass& pass) const {
  pass.body(node, [this](const Environment& environment) { return body(environment); });
}

}  // namespace orvane::ui
