// How a view comes and goes: what it looks like when it is not there.
#pragma once

#include <algorithm>
#include <optional>

#include "Orvane/ui/layout/Edges.hpp"

namespace orvane::ui {

struct Transition {
  // The absent view's opacity, its scale about its middle, and the edge it has moved off by its own
  // width or height.
  double absentOpacity = 1;
  double absentScale = 1;
  std::optional<Edge> moveEdge = std::nullopt;
  // The fraction of its way, less than 1, that the view covers before its opacity begins to change.
  double opacityDelay = 0;

  static Transition opacity() { return {.absentOpacity = 0}; }
  // For views that replace one another in one place: the old one fades in the first half of the
  // way, the new one in the second half, and both are never seen at once. Of three views or more
  // this holds when each change begins after the one before has ended.
  static Transition fadeThrough() { return {.absentOpacity = 0, .opacityDelay = 0.5}; }
  static Transition scale(double from = 0) { return {.absentScale = from}; }
  static Transition move(Edge edge) { return {.moveEdge = edge}; }

  // Both at once.
  Transition combined(const Transition& other) const {
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
