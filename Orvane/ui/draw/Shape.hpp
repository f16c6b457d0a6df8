// The few outlines that the kit draws, each in its rectangle.
#pragma once

#include "Orvane/ui/draw/Path.hpp"
#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

// Circular corners are quarter circles; continuous ones bend in without a jump of curvature.
enum class CornerStyle { circular, continuous };

struct Shape {
  enum class Kind { rectangle, roundedRectangle, capsule, ellipse };

  Kind kind = Kind::rectangle;
  Rect rect;
  // Only for the rounded rectangle.
  double cornerRadius = 0;
  CornerStyle cornerStyle = CornerStyle::circular;

  static Shape rectangle(const Rect& rect) { return {Kind::rectangle, rect, 0, {}}; }
  static Shape roundedRectangle(const Rect& rect, double cornerRadius,
                                CornerStyle style = CornerStyle::continuous) {
    return {Kind::roundedRectangle, rect, cornerRadius, style};
  }
  // A rounded rectangle whose radius is half of its shorter side.
  static Shape capsule(const Rect& rect) { return {Kind::capsule, rect, 0, {}}; }
  static Shape ellipse(const Rect& rect) { return {Kind::ellipse, rect, 0, {}}; }
  // The largest circle in the middle of the rectangle.
  static Shape circle(const Rect& rect);

  // The shape whose outline runs inside this one at the distance; outside when it is negative.
  Shape inset(double distance) const;
  // The radius as drawn: never negative, never more than half of the shorter side.
  double effectiveRadius() const;
  // The closed outline, clockwise; no element when the rectangle is empty.
  Path path() const;

  friend bool operator==(const Shape&, const Shape&) = default;
};

}  // namespace orvane::ui
