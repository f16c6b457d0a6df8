// A change of coordinates by scale and translation, which is all that the kit's views ask for:
// a point p becomes (p.x * scaleX + x, p.y * scaleY + y).
#pragma once

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

struct Transform {
  double scaleX = 1;
  double scaleY = 1;
  double x = 0;
  double y = 0;

  static Transform translation(Point distance) { return {1, 1, distance.x, distance.y}; }
  // Scales about a point, which stays where it is.
  static Transform scale(double factorX, double factorY, Point about) {
    return {factorX, factorY, about.x - factorX * about.x, about.y - factorY * about.y};
  }

  Point apply(Point point) const { return {point.x * scaleX + x, point.y * scaleY + y}; }
  Rect apply(const Rect& rect) const {
    const Point a = apply(rect.origin());
    const Point b = apply(Point{rect.right(), rect.bottom()});
    return Rect::between(std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x),
                         std::max(a.y, b.y));
  }
  // The transform that applies `inner` first and then this one.
  Transform after(const Transform& inner) const {
    return {scaleX * inner.scaleX, scaleY * inner.scaleY, scaleX * inner.x + x,
            scaleY * inner.y + y};
  }
  // False when the scale is zero: nothing can be seen or hit through such a transform.
  bool isInvertible() const { return scaleX != 0 && scaleY != 0; }
  // Only for an invertible transform.
  Transform inverse() const { return {1 / scaleX, 1 / scaleY, -x / scaleX, -y / scaleY}; }
  bool isTranslation() const { return scaleX == 1 && scaleY == 1; }

  friend bool operator==(const Transform&, const Transform&) = default;
};

}  // namespace orvane::ui
