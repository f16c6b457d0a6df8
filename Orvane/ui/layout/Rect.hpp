// Rectangles, and the points, sizes, edges and alignments that describe them. Lengths are points;
// the origin is at the top left, y downwards.
#pragma once

#include <algorithm>

namespace orvane::ui {

struct Point {
  double x = 0;
  double y = 0;

  friend bool operator==(const Point&, const Point&) = default;
  friend Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
  friend Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
};

struct Size {
  double width = 0;
  double height = 0;

  friend bool operator==(const Size&, const Size&) = default;
};

/// Distances from the four edges of a rectangle; leading is the left edge.
struct Edges {
  double top = 0;
  double leading = 0;
  double bottom = 0;
  double trailing = 0;

  [[nodiscard]] static Edges all(double distance) { return symmetric(distance, distance); }
  [[nodiscard]] static Edges horizontal(double distance) { return symmetric(distance, 0); }
  [[nodiscard]] static Edges vertical(double distance) { return symmetric(0, distance); }
  [[nodiscard]] static Edges symmetric(double horizontal, double vertical) {
    return {vertical, horizontal, vertical, horizontal};
  }

  [[nodiscard]] double width() const { return leading + trailing; }
  [[nodiscard]] double height() const { return top + bottom; }
};

/// A top left corner and a size, which is never negative.
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

/// A point in a rectangle as fractions of its width and height.
struct UnitPoint {
  double x = 0.5;
  double y = 0.5;

  [[nodiscard]] static constexpr UnitPoint topLeading() { return {0, 0}; }
  [[nodiscard]] static constexpr UnitPoint top() { return {0.5, 0}; }
  [[nodiscard]] static constexpr UnitPoint topTrailing() { return {1, 0}; }
  [[nodiscard]] static constexpr UnitPoint leading() { return {0, 0.5}; }
  [[nodiscard]] static constexpr UnitPoint center() { return {0.5, 0.5}; }
  [[nodiscard]] static constexpr UnitPoint trailing() { return {1, 0.5}; }
  [[nodiscard]] static constexpr UnitPoint bottom() { return {0.5, 1}; }
  [[nodiscard]] static constexpr UnitPoint bottomTrailing() { return {1, 1}; }

  [[nodiscard]] Point in(const Rect& rect) const {
    return {rect.x + rect.width * x, rect.y + rect.height * y};
  }
  /// The top left corner of content with this alignment, in the container's coordinates.
  [[nodiscard]] Point originOf(Size content, Size container) const {
    return {(container.width - content.width) * x, (container.height - content.height) * y};
  }
};

/// The position of a view in a frame that is larger or smaller than the view.
using Alignment = UnitPoint;

/// The position of a view in a column, or of a line in its text.
enum class HorizontalAlignment { leading, center, trailing };

}  // namespace orvane::ui
