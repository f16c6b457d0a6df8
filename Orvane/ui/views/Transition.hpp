// How a view comes and goes: what it looks like when it is not there.
#pragma once

#include <algorithm>
#include <optional>

#include "Orvane/ui/layout/Edges.hpp"
#include "Orvane/ui/views/Curve.hpp"

namespace orvane::ui {

struct Transition {
  // The absent view's opacity, its scale about its middle, and the edge it has moved off by its own
  // width or height.
  double absentOpacity = 1;
  double absentScale = 1;
  std::optional<Edge> moveEdge;
  // Used instead of the animation under way, if given.
  std::optional<Curve> curve;
  // The share of its way, less than 1, that the view covers before its opacity begins to change.
  double opacityDelay = 0;

  static Transition opacity() { return {0, 1, {}, {}, 0}; }
  // For views that replace one another in one place: the old one fades in the first half of the
  // way, the new one in the second half, and both are never seen at once. Of three views or more
  // this holds when each change begins after the one before has ended.
  static Transition fadeThrough() { return {0, 1, {}, {}, 0.5}; }
  static Transition scale(double from = 0) { return {1, from, {}, {}, 0}; }
  static Transition move(Edge edge) { return {1, 1, edge, {}, 0}; }

  // Both at once.
  Transition combined(const Transition& other) const {
    Transition result = *this;
    result.absentOpacity *= other.absentOpacity;
    result.absentScale *= other.absentScale;
    result.opacityDelay = std::max(opacityDelay, other.opacityDelay);
    if (other.moveEdge) {
      result.moveEdge = other.moveEdge;
    }
    if (other.curve) {
      result.curve = other.curve;
    }
    return result;
  }
  Transition animated(const Curve& by) const {
    Transition result = *this;
    result.curve = by;
    return result;
  }
};

}  // namespace orvane::ui
