// A scale and a translation: a point p becomes (p.x * scaleX + x, p.y * scaleY + y).
#pragma once

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

struct Transform {
  double scaleX = 1;
  double scaleY = 1;
  double x = 0;
  double y = 0;

  [[nodiscard]] static Transform translation(Point distance) {
    return {.x = distance.x, .y = distance.y};
  }
  /// Scales about a fixed point.
  [[nodiscard]] static Transform scale(double factorX, double factorY, Point about) {
    return {factorX, factorY, about.x - factorX * about.x, about.y - factorY * about.y};
  }

  [[nodiscard]] Point apply(Point point) const {
    return {point.x * scaleX + x, point.y * scaleY + y};
  }
  [[nodiscard]] Rect apply(const Rect& rect) const {
    const Point a = apply(rect.origin());
    const Point b = apply(Point{rect.right(), rect.bottom()});
    return Rect::between(std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x),
                         std::max(a.y, b.y));
  }
  /// The transform that applies `inner` first and then this one.
  [[nodiscard]] Transform after(const Transform& inner) const {
    return {scaleX * inner.scaleX, scaleY * inner.scaleY, scaleX * inner.x + x,
            scaleY * inner.y + y};
  }
  /// False when a scale is zero: then nothing is visible or hit through it.
  [[nodiscard]] bool isInvertible() const { return scaleX != 0 && scaleY != 0; }
  /// Only for an invertible transform.
  [[nodiscard]] Transform inverse() const {
    return {1 / scaleX, 1 / scaleY, -x / scaleX, -y / scaleY};
  }
  [[nodiscard]] bool isTranslation() const { return scaleX == 1 && scaleY == 1; }

  friend bool operator==(const Transform&, const Transform&) = default;
};

}  // namespace orvane::ui
