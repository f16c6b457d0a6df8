// The content is the only child.
#include "Orvane/ui/views/Modifiers.hpp"

#include "Orvane/ui/host/BuildPass.hpp"

namespace orvane::ui {

void ModifierElement::build(Node& node, BuildPass& pass) const {
  pass.children(node, {content_}, node.environment);
}

}  // namespace orvane::ui
