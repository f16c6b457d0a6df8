// A group outside of a container.
#include "Orvane/ui/views/Group.hpp"

#include <algorithm>

#include "Orvane/ui/host/Builder.hpp"
#include "Orvane/ui/host/LayoutPass.hpp"

namespace orvane::ui {

GroupElement::GroupElement(const std::vector<View>& members) {
  for (const View& member : members) {
    const auto* inner = dynamic_cast<const GroupElement*>(member.element().get());
    if (inner != nullptr && member.explicitId().empty()) {
      members_.insert(members_.end(), inner->members().begin(), inner->members().end());
    } else {
      members_.push_back(member);
    }
  }
}

void GroupElement::build(Node& node, Builder& builder) const {
  builder.children(node, members_, node.environment);
}

Size GroupElement::measure(Node& node, const Proposal& proposal, LayoutPass& pass) const {
  Size result;
  for (const auto& child : node.children) {
    const Size size = pass.measure(*child, proposal);
    result = {std::max(result.width, size.width), std::max(result.height, size.height)};
  }
  return result;
}

void GroupElement::place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const {
  for (const auto& child : node.children) {
    pass.placeAligned(*child, size, Alignment::center(), proposal);
  }
}

}  // namespace orvane::ui
