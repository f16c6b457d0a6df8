// The size that a parent proposes to a child: on each axis zero, finite, infinite or unspecified.
#pragma once

#include <algorithm>
#include <optional>

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

enum class Axis { horizontal, vertical };

struct Proposal {
  /// In points. Unspecified asks for the child's ideal length.
  std::optional<double> width;
  std::optional<double> height;

  [[nodiscard]] static Proposal of(Size size) { return {size.width, size.height}; }

  /// With zero for a length that is negative or not a number.
  [[nodiscard]] Proposal sanitized() const {
    const auto clean = [](std::optional<double> length) {
      return length ? std::optional<double>(std::max(0.0, *length)) : length;
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

  friend bool operator==(const Proposal&, const Proposal&) = default;
};

/// Exchanges width and height if the axis is vertical, so that the width is the length along the
/// axis. The same again restores them.
template <typename Lengths>
[[nodiscard]] Lengths turned(Axis axis, const Lengths& lengths) {
  return axis == Axis::horizontal ? lengths : Lengths{lengths.height, lengths.width};
}

}  // namespace orvane::ui
