// A shape without its rectangle: what a view is drawn as, clipped to, or ringed with.
#pragma once

#include "Orvane/ui/draw/Shape.hpp"

namespace orvane::ui {

struct ShapeForm {
  enum class Kind { rectangle, roundedRectangle, capsule, circle, ellipse };

  Kind kind = Kind::rectangle;
  double cornerRadius = 0;
  CornerStyle cornerStyle = CornerStyle::continuous;

  static ShapeForm rectangle() { return {}; }
  static ShapeForm rounded(double cornerRadius, CornerStyle style = CornerStyle::continuous) {
    return {Kind::roundedRectangle, cornerRadius, style};
  }
  static ShapeForm capsule() { return {Kind::capsule, 0, {}}; }
  static ShapeForm circle() { return {Kind::circle, 0, {}}; }
  static ShapeForm ellipse() { return {Kind::ellipse, 0, {}}; }

  Shape in(const Rect& rect) const {
    switch (kind) {
      case Kind::rectangle:
        break;
      case Kind::roundedRectangle:
        return Shape::roundedRectangle(rect, cornerRadius, cornerStyle);
      case Kind::capsule:
        return Shape::capsule(rect);
      case Kind::circle:
        return Shape::circle(rect);
      case Kind::ellipse:
        return Shape::ellipse(rect);
    }
    return Shape::rectangle(rect);
  }
};

}  // namespace orvane::ui
