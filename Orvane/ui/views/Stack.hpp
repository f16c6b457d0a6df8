// Views in a row, in a column, or above one another.
#pragma once

#include <vector>

#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

enum class HorizontalAlignment { leading, center, trailing };
enum class VerticalAlignment { top, center, bottom };

// A column. Children get the spacing between them, exactly, and are aligned across the column.
class VStack : public View {
 public:
  explicit VStack(const std::vector<View>& children) : VStack(defaultSpacing, children) {}
  VStack(double spacing, const std::vector<View>& children)
      : VStack(spacing, HorizontalAlignment::center, children) {}
  VStack(double spacing, HorizontalAlignment alignment, const std::vector<View>& children);
};

// A row, from leading to trailing.
class HStack : public View {
 public:
  explicit HStack(const std::vector<View>& children) : HStack(defaultSpacing, children) {}
  HStack(double spacing, const std::vector<View>& children)
      : HStack(spacing, VerticalAlignment::center, children) {}
  HStack(double spacing, VerticalAlignment alignment, const std::vector<View>& children);
};

// Children above one another, the first one lowest; as large as the largest.
class ZStack : public View {
 public:
  explicit ZStack(const std::vector<View>& children) : ZStack(Alignment::center(), children) {}
  ZStack(Alignment alignment, const std::vector<View>& children);
};

// Takes what room is left along its stack, at least the minimum.
class Spacer : public View {
 public:
  explicit Spacer(double minimum = 0);
};

// A hairline across the stack it stands in, in the faintest label colour.
class Divider : public View {
 public:
  Divider();
};

}  // namespace orvane::ui
