// The division of a length among the children of a stack.
#include "Orvane/ui/layout/StackLayout.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace orvane::ui {

namespace {

double flexibility(const StackItem& item) {
  // Infinity minus infinity is not a number; such a child is fully flexible.
  const double difference = item.maximum - item.minimum;
  return std::isnan(difference) ? HUGE_VAL : difference;
}

std::vector<std::size_t> servingOrder(const std::vector<StackItem>& items) {
  std::vector<std::size_t> order(items.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  // Ties are broken by place, so that the order does not depend on the sorting algorithm.
  std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    if (items[a].priority != items[b].priority) {
      return items[a].priority > items[b].priority;
    }
    const double ofA = flexibility(items[a]);
    const double ofB = flexibility(items[b]);
    return ofA != ofB ? ofA < ofB : a < b;
  });
  return order;
}

}  // namespace

std::vector<StackSegment> divideStack(
    std::optional<double> available, double spacing, const std::vector<StackItem>& items,
    const std::function<double(std::size_t index, std::optional<double> offer)>& choose) {
  std::vector<StackSegment> segments(items.size());
  if (items.empty()) {
    return segments;
  }
  if (!available || std::isinf(*available)) {
    for (std::size_t index = 0; index < items.size(); ++index) {
      segments[index] = {available, choose(index, available)};
    }
    return segments;
  }

  double remaining = *available - spacing * static_cast<double>(items.size() - 1);
  const std::vector<std::size_t> order = servingOrder(items);
  for (std::size_t begin = 0; begin < order.size();) {
    std::size_t end = begin;
    while (end < order.size() && items[order[end]].priority == items[order[begin]].priority) {
      ++end;
    }
    double reserved = 0;
    for (std::size_t index = begin; index < order.size(); ++index) {
      reserved += items[order[index]].minimum;
    }
    double lowerReserved = 0;
    for (std::size_t index = end; index < order.size(); ++index) {
      lowerReserved += items[order[index]].minimum;
    }
    for (std::size_t index = begin; index < end; ++index) {
      reserved -= items[order[index]].minimum;
      const double equalPart = (remaining - lowerReserved) / static_cast<double>(end - index);
      const double offer = std::max(0.0, std::min(equalPart, remaining - reserved));
      const double length = choose(order[index], offer);
      segments[order[index]] = {offer, length};
      remaining -= length;
    }
    begin = end;
  }
  return segments;
}

}  // namespace orvane::ui
