// The few outlines that the kit draws, clips to and marks the focus with.
#pragma once

#include <vector>

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

struct PathElement {
  enum class Kind { move, line, cubic, close };

  Kind kind = Kind::move;
  /// The end of the element; ignored for `close`.
  Point to = {};
  /// The control points of a cubic; ignored otherwise.
  Point control1 = {};
  Point control2 = {};
};

/// An outline of lines and cubic Bezier curves, for canvases to trace.
class Path {
 public:
  void move(Point to) { elements_.push_back({.kind = PathElement::Kind::move, .to = to}); }
  void line(Point to) { elements_.push_back({.kind = PathElement::Kind::line, .to = to}); }
  void cubic(Point control1, Point control2, Point to) {
    elements_.push_back({PathElement::Kind::cubic, to, control1, control2});
  }
  void close() { elements_.push_back({.kind = PathElement::Kind::close}); }

  [[nodiscard]] const std::vector<PathElement>& elements() const { return elements_; }

 private:
  std::vector<PathElement> elements_;
};

/// Circular corners are quarter circles; continuous ones bend in without a jump of curvature.
enum class CornerStyle { circular, continuous };

/// A shape in its rectangle. A view's shape has an empty rectangle until it is drawn and `in` sets
/// the view's.
struct Shape {
  enum class Kind { rectangle, roundedRectangle, capsule, circle, ellipse };

  Kind kind = Kind::rectangle;
  Rect rect = {};
  /// In points; only for the rounded rectangle.
  double cornerRadius = 0;
  CornerStyle cornerStyle = CornerStyle::circular;

  [[nodiscard]] static Shape rectangle(const Rect& rect = {}) { return {.rect = rect}; }
  [[nodiscard]] static Shape rounded(double cornerRadius) {
    return roundedRectangle({}, cornerRadius);
  }
  [[nodiscard]] static Shape roundedRectangle(const Rect& rect, double cornerRadius,
                                              CornerStyle style = CornerStyle::continuous) {
    return {Kind::roundedRectangle, rect, cornerRadius, style};
  }
  /// A rounded rectangle whose radius is half of its shorter side.
  [[nodiscard]] static Shape capsule(const Rect& rect = {}) {
    return {.kind = Kind::capsule, .rect = rect};
  }
  [[nodiscard]] static Shape circle() { return {.kind = Kind::circle}; }
  /// The largest circle in the middle of the rectangle.
  [[nodiscard]] static Shape circle(const Rect& rect) { return circle().in(rect); }
  [[nodiscard]] static Shape ellipse(const Rect& rect) {
    return {.kind = Kind::ellipse, .rect = rect};
  }

  /// The same shape in another rectangle; a circle becomes an ellipse in the square in its middle.
  [[nodiscard]] Shape in(const Rect& other) const;
  /// The shape whose outline runs inside this one at the distance; outside when it is negative.
  [[nodiscard]] Shape inset(double distance) const;
  /// The radius as drawn: never negative, never more than half of the shorter side.
  [[nodiscard]] double effectiveRadius() const;
  /// The closed outline, clockwise; no element when the rectangle is empty.
  [[nodiscard]] Path path() const;

  friend bool operator==(const Shape&, const Shape&) = default;
};

}  // namespace orvane::ui
