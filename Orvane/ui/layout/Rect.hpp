// A rectangle in points: its top left corner and its size, which is never negative.
#pragma once

#include <algorithm>

#include "Orvane/ui/layout/Edges.hpp"
#include "Orvane/ui/layout/Point.hpp"
#include "Orvane/ui/layout/Size.hpp"

namespace orvane::ui {

struct Rect {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  [[nodiscard]] static Rect from(Point origin, Size size) {
    return {origin.x, origin.y, size.width, size.height};
  }
  /// Empty unless `right` exceeds `left` and `bottom` exceeds `top`.
  [[nodiscard]] static Rect between(double left, double top, double right, double bottom) {
    return {left, top, std::max(0.0, right - left), std::max(0.0, bottom - top)};
  }

  [[nodiscard]] Point origin() const { return {x, y}; }
  [[nodiscard]] Size size() const { return {width, height}; }
  [[nodiscard]] Point center() const { return {x + width / 2, y + height / 2}; }
  [[nodiscard]] double right() const { return x + width; }
  [[nodiscard]] double bottom() const { return y + height; }
  [[nodiscard]] bool isEmpty() const { return width <= 0 || height <= 0; }

  /// The left and top edges belong to the rectangle, the right and bottom ones do not.
  [[nodiscard]] bool contains(Point point) const {
    return point.x >= x && point.y >= y && point.x < right() && point.y < bottom();
  }
  [[nodiscard]] bool intersects(const Rect& other) const {
    return !isEmpty() && !other.isEmpty() && x < other.right() && other.x < right() &&
           y < other.bottom() && other.y < bottom();
  }
  [[nodiscard]] Rect intersection(const Rect& other) const {
    return between(std::max(x, other.x), std::max(y, other.y), std::min(right(), other.right()),
                   std::min(bottom(), other.bottom()));
  }
  /// The smallest rectangle that contains both; an empty one adds nothing.
  [[nodiscard]] Rect united(const Rect& other) const {
    if (isEmpty()) {
      return other;
    }
    if (other.isEmpty()) {
      return *this;
    }
    return between(std::min(x, other.x), std::min(y, other.y), std::max(right(), other.right()),
                   std::max(bottom(), other.bottom()));
  }
  [[nodiscard]] Rect inset(const Edges& edges) const {
    return between(x + edges.leading, y + edges.top, right() - edges.trailing,
                   bottom() - edges.bottom);
  }
  /// Smaller by `distance` on every side; larger when it is negative.
  [[nodiscard]] Rect inset(double distance) const { return inset(Edges::all(distance)); }
  [[nodiscard]] Rect outset(const Edges& edges) const {
    return inset({-edges.top, -edges.leading, -edges.bottom, -edges.trailing});
  }
  [[nodiscard]] Rect movedBy(Point distance) const {
    return {x + distance.x, y + distance.y, width, height};
  }

  friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace orvane::ui
