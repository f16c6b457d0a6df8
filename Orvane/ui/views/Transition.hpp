// How a view appears and disappears: its effect while it is absent.
#pragma once

#include <algorithm>
#include <optional>

#include "Orvane/ui/layout/Edges.hpp"

namespace orvane::ui {

struct Transition {
  /// The absent view's opacity, its scale about its centre, and the edge beyond which it has moved
  /// by its own width or height.
  double absentOpacity = 1;
  double absentScale = 1;
  std::optional<Edge> moveEdge = std::nullopt;
  /// The opacity begins to change after this fraction of the transition, less than 1.
  double opacityDelay = 0;

  static Transition opacity() { return {.absentOpacity = 0}; }
  /// For views that replace each other in one place: the old one fades out in the first half, the
  /// new one fades in in the second half, and the two are never visible at once. With more than two
  /// views this holds if each change begins after the previous one has ended.
  static Transition fadeThrough() { return {.absentOpacity = 0, .opacityDelay = 0.5}; }
  static Transition scale(double from = 0) { return {.absentScale = from}; }
  static Transition move(Edge edge) { return {.moveEdge = edge}; }

  [[nodiscard]] Transition combined(const Transition& other) const {
    Transition result = *this;
    result.absentOpacity *= other.absentOpacity;
    result.absentScale *= other.absentScale;
    result.opacityDelay = std::max(opacityDelay, other.opacityDelay);
    if (other.moveEdge) {
      result.moveEdge = other.moveEdge;
    }
    return result;
  }
};

}  // namespace orvane::ui
