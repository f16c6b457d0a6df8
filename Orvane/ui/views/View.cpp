// The element of a composite view, and the parts of View that need no modifier.
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
