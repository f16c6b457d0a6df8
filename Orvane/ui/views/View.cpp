// The identity of views, and the nodes of composite views.
#include "Orvane/ui/views/View.hpp"

#include "Orvane/ui/host/BuildPass.hpp"

namespace orvane::ui {

View View::id(std::string id) const {
  View result = *this;
  result.id_ = std::move(id);
  return result;
}

void ComponentElement::build(Node& node, BuildPass& pass) const {
  pass.body(node, [this](const Environment& environment) { return body(environment); });
}

}  // namespace orvane::ui
