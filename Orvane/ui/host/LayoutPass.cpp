// Measuring with a small memory per node, and placing with animation.
#include "Orvane/ui/host/LayoutPass.hpp"

#include <array>
#include <cmath>

namespace orvane::ui {

namespace {

// What is no number, and what is negative, becomes zero.
double clean(double length) {
  return length > 0 ? length : 0;
}

double finite(double value) {
  return std::isfinite(value) ? value : 0;
}

}  // namespace

Size LayoutPass::measure(Node& node, const Proposal& proposal) {
  const Proposal asked = proposal.sanitized();
  for (const MeasuredSize& known : node.measured) {
    if (known.proposal == asked) {
      return known.size;
    }
  }
  const Size chosen = node.element->measure(node, asked, *this);
  const Size size{clean(chosen.width), clean(chosen.height)};
  node.measured.push_back({asked, size});
  return size;
}

void LayoutPass::place(Node& node, Point origin, const Proposal& proposal) {
  const Proposal asked = proposal.sanitized();
  const Size chosen = measure(node, asked);
  const Size size{finite(chosen.width), finite(chosen.height)};
  const std::array<double, 4> targets{finite(origin.x), finite(origin.y), size.width, size.height};
  for (std::size_t index = 0; index < targets.size(); ++index) {
    if (node.isNew) {
      node.geometry[index].jump(targets[index]);
    } else {
      node.geometry[index].set(targets[index], node.curve, now_);
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
