// The kernel of the stacks: divides a length among children, knowing nothing of views.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace orvane::ui {

// What a child of a stack is known by before it is offered anything, along the stack's axis.
struct StackItem {
  // The length it takes when offered zero, and when offered infinity.
  double least = 0;
  double most = 0;
  // Higher priorities are served first; lower ones are kept their least length meanwhile.
  double priority = 0;
};

struct StackShare {
  // What the child was offered; empty when the stack itself was offered nothing definite.
  std::optional<double> offer;
  // What it chose.
  double length = 0;
};

// Offers the available length, less the spacing between neighbours, to the children: by falling
// priority, within a priority the least flexible first (ties in their order), each an equal share
// of what is left for its priority, but never what others need for their least. `choose` returns
// the length the child takes for an offer. The result has the order of the items. An unspecified or
// infinite length is offered to every child as it is.
std::vector<StackShare> divideStack(
    std::optional<double> available, double spacing, const std::vector<StackItem>& items,
    const std::function<double(std::size_t index, std::optional<double> offer)>& choose);

}  // namespace orvane::ui
