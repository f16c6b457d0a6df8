// How a view comes and goes: what it looks like when it is not there.
#pragma once

#include <optional>

#include "Orvane/ui/Curve.hpp"
#include "Orvane/ui/Edges.hpp"

namespace orvane::ui {

struct Transition {
  // The absent view's opacity, its scale about its middle, and the edge it has moved off by its own
  // width or height.
  double absentOpacity = 1;
  double absentScale = 1;
  std::optional<Edge> moveEdge;
  // Used instead of the animation under way, if given.
  std::optional<Curve> curve;

  static Transition opacity() { return {0, 1, {}, {}}; }
  static Transition scale(double from = 0) { return {1, from, {}, {}}; }
  static Transition move(Edge edge) { return {1, 1, edge, {}}; }

  // Both at once.
  Transition combined(const Transition& other) const {
    Transition result = *this;
    result.absentOpacity *= other.absentOpacity;
    result.absentScale *= other.absentScale;
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
