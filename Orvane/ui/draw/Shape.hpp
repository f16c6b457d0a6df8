// The few outlines that the kit draws, clips to and marks the focus with.
#pragma once

#include "Orvane/ui/draw/Path.hpp"
#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

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
  [[nodiscard]] static Shape rounded(double cornerRadius,
                                     CornerStyle style = CornerStyle::continuous) {
    return roundedRectangle({}, cornerRadius, style);
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
