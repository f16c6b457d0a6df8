// The defaults: an element wraps its first child.
#include "Orvane/ui/views/Element.hpp"

#include "Orvane/ui/host/LayoutPass.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

Size Element::measure(Node& node, const Proposal& proposal, LayoutPass& pass) const {
  return node.children.empty() ? Size{} : pass.measure(*node.children.front(), proposal);
}

void Element::place(Node& node, const Proposal& proposal, Size, LayoutPass& pass) const {
  if (!node.children.empty()) {
    pass.place(*node.children.front(), {0, 0}, proposal);
  }
}

const Interaction& Element::interaction() const {
  static const Interaction none;
  return none;
}

std::vector<SemanticsNode> Element::semantics(const Node&,
                                              std::vector<SemanticsNode> children) const {
  return children;
}

double Element::layoutPriority(const Node& node) const {
  // Modifiers pass on the priority of their content.
  return node.children.size() == 1
             ? node.children.front()->element->layoutPriority(*node.children.front())
             : 0;
}

}  // namespace orvane::ui
