// Modifiers and composite views describe their one child here.
#include "Orvane/ui/views/WrapperElement.hpp"

#include "Orvane/ui/host/Builder.hpp"
#include "Orvane/ui/views/LifecycleElement.hpp"

namespace orvane::ui {

void WrapperElement::build(Node& node, Builder& builder) const {
  builder.children(node, {content_}, node.environment);
}

void ComponentElement::build(Node& node, Builder& builder) const {
  if (!node.states) {
    node.states = std::make_shared<StateStore>();
  }
  Environment own = *node.environment;
  own.states = node.states;
  builder.children(node, {body(own)}, node.environment);
}

void LifecycleElement::build(Node& node, Builder& builder) const {
  if (node.isNew && onAppear_) {
    builder.afterLayout(onAppear_);
  }
  WrapperElement::build(node, builder);
}

}  // namespace orvane::ui
