// Children on top of each other, for groups and ZStacks.
#include "Orvane/ui/views/Group.hpp"

#include <algorithm>

#include "Orvane/ui/host/BuildPass.hpp"
#include "Orvane/ui/host/LayoutPass.hpp"

namespace orvane::ui {

namespace {

std::vector<View> flattened(const std::vector<View>& members) {
  std::vector<View> result;
  for (const View& member : members) {
    const auto* inner = dynamic_cast<const GroupElement*>(member.element().get());
    if (inner != nullptr && member.explicitId().empty()) {
      result.insert(result.end(), inner->members().begin(), inner->members().end());
    } else {
      result.push_back(member);
    }
  }
  return result;
}

}  // namespace

Size OverlaidElement::measure(Node& node, const Proposal& proposal, LayoutPass& pass) const {
  Size result;
  for (const auto& child : node.children) {
    const Size size = pass.measure(*child, proposal);
    result = {std::max(result.width, size.width), std::max(result.height, size.height)};
  }
  return result;
}

void OverlaidElement::place(Node& node, const Proposal& proposal, Size size,
                            LayoutPass& pass) const {
  for (const auto& child : node.children) {
    pass.placeAligned(*child, size, alignment_, proposal);
  }
}

GroupElement::GroupElement(const std::vector<View>& members)
    : OverlaidElement(Alignment::center(), flattened(members)) {}

void GroupElement::build(Node& node, BuildPass& pass) const {
  pass.children(node, members(), node.environment);
}

}  // namespace orvane::ui
