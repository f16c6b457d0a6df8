// Measuring, with a cache in each node, and placing along the curve of the update.
#include "Orvane/ui/host/LayoutPass.hpp"

#include <array>
#include <cmath>

namespace orvane::ui {

namespace {

double finite(double value) {
  return std::isfinite(value) ? value : 0;
}

}  // namespace

Size LayoutPass::measure(Node& node, const Proposal& proposal) {
  const Proposal asked = proposal.sanitized();
  for (const auto& [cachedProposal, cachedSize] : node.measured) {
    if (cachedProposal == asked) {
      return cachedSize;
    }
  }
  const Size chosen = node.element->measure(node, asked, *this);
  // With zero for a length that is not a number.
  const Size size{std::max(0.0, chosen.width), std::max(0.0, chosen.height)};
  node.measured.emplace_back(asked, size);
  return size;
}

void LayoutPass::place(Node& node, Point origin, const Proposal& proposal) {
  const Proposal asked = proposal.sanitized();
  const Size chosen = measure(node, asked);
  const Size size{finite(chosen.width), finite(chosen.height)};
  const std::array<double, 4> targets{finite(origin.x), finite(origin.y), size.width, size.height};
  const auto differs = [&](std::size_t index) {
    return !node.isNew && node.geometry[index].target() != targets[index];
  };
  node.trace.isMoved = differs(0) || differs(1);
  node.trace.isResized = differs(2) || differs(3);
  for (std::size_t index = 0; index < targets.size(); ++index) {
    if (node.isNew) {
      node.geometry[index].jump(targets[index]);
    } else {
      node.geometry[index].set(targets[index], node.curve, now);
    }
  }
  node.isNew = false;
  node.element->place(node, asked, size, *this);
}

void LayoutPass::placeAligned(Node& node, Size container, Alignment alignment,
                              const Proposal& proposal) {
  place(node, alignment.originOf(measure(node, proposal), container), proposal);
}

}  // namespace orvane::ui
