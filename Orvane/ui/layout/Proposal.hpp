// The size that a parent proposes to a child: on each axis zero, finite, infinite or unspecified.
#pragma once

#include <algorithm>
#include <optional>

#include "Orvane/ui/layout/Edges.hpp"
#include "Orvane/ui/layout/Size.hpp"

namespace orvane::ui {

enum class Axis { horizontal, vertical };

struct Proposal {
  /// In points. Unspecified asks for the child's ideal length.
  std::optional<double> width;
  std::optional<double> height;

  [[nodiscard]] static Proposal of(Size size) { return {size.width, size.height}; }
  [[nodiscard]] static Proposal oriented(Axis axis, std::optional<double> along,
                                         std::optional<double> across) {
    return axis == Axis::horizontal ? Proposal{along, across} : Proposal{across, along};
  }

  /// With zero for a length that is negative or not a number.
  [[nodiscard]] Proposal sanitized() const {
    const auto clean = [](std::optional<double> length) {
      return length && !(*length > 0) ? std::optional<double>(0) : length;
    };
    return {clean(width), clean(height)};
  }
  /// Smaller by the edges, but never negative.
  [[nodiscard]] Proposal inset(const Edges& edges) const {
    const auto less = [](std::optional<double> length, double distance) {
      return length ? std::optional<double>(std::max(0.0, *length - distance)) : length;
    };
    return {less(width, edges.width()), less(height, edges.height())};
  }

  [[nodiscard]] std::optional<double> along(Axis axis) const {
    return axis == Axis::horizontal ? width : height;
  }
  [[nodiscard]] std::optional<double> across(Axis axis) const {
    return axis == Axis::horizontal ? height : width;
  }

  friend bool operator==(const Proposal&, const Proposal&) = default;
};

[[nodiscard]] inline double lengthAlong(Axis axis, Size size) {
  return axis == Axis::horizontal ? size.width : size.height;
}
[[nodiscard]] inline double lengthAcross(Axis axis, Size size) {
  return axis == Axis::horizontal ? size.height : size.width;
}
[[nodiscard]] inline Size orientedSize(Axis axis, double along, double across) {
  return axis == Axis::horizontal ? Size{along, across} : Size{across, along};
}

}  // namespace orvane::ui
