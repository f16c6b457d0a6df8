// Views in a column, in a row, or on top of each other.
#pragma once

#include <vector>

#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

/// A column, with exactly this spacing between the children.
struct [[nodiscard]] VStack : View {
  VStack(double spacing, const std::vector<View>& children)
      : VStack(spacing, HorizontalAlignment::center, children) {}
  VStack(double spacing, HorizontalAlignment alignment, const std::vector<View>& children);
};

/// A row, from leading to trailing, with its children in the middle of its height.
struct [[nodiscard]] HStack : View {
  HStack(double spacing, const std::vector<View>& children);
};

/// Children on top of each other, the first one lowest; as large as the largest.
struct [[nodiscard]] ZStack : View {
  explicit ZStack(const std::vector<View>& children) : ZStack(Alignment::center(), children) {}
  ZStack(Alignment alignment, const std::vector<View>& children);
};

/// Takes the remaining room along its stack, at least the minimum.
struct [[nodiscard]] Spacer : View {
  explicit Spacer(double minimum = 0);
};

}  // namespace orvane::ui
