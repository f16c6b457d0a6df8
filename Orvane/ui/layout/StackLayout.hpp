// The division of a stack's length among its children, independent of views.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace orvane::ui {

/// A child of a stack, along the stack's axis.
struct StackItem {
  /// The lengths that it chooses when it is offered zero and infinity.
  double minimum = 0;
  double maximum = 0;
  /// Higher priorities are served first, while the minimums of the lower ones are kept free.
  double priority = 0;
};

struct StackSegment {
  /// The length that the child was offered; none when the stack's own length is unspecified.
  std::optional<double> offer;
  /// The length that it chose.
  double length = 0;
};

/// Divides `available`, less the spacing between neighbours, among the items. They are served by
/// falling priority, and within a priority by rising flexibility (ties in their order). Each is
/// offered an equal part of what is left for its priority, without the minimums of the others.
/// `choose` returns the length that an item takes for an offer. The result has the order of the
/// items. An unspecified or infinite length is offered to every item as it is.
[[nodiscard]] std::vector<StackSegment> divideStack(
    std::optional<double> available, double spacing, const std::vector<StackItem>& items,
    const std::function<double(std::size_t index, std::optional<double> offer)>& choose);

}  // namespace orvane::ui
