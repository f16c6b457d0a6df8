// A scale and a translation: a point p becomes (p.x * scale + x, p.y * scale + y).
#pragma once

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

struct Transform {
  double scale = 1;
  double x = 0;
  double y = 0;

  [[nodiscard]] static Transform translation(Point distance) {
    return {.x = distance.x, .y = distance.y};
  }
  /// Scales about a fixed point.
  [[nodiscard]] static Transform scaling(double factor, Point about) {
    return {factor, about.x - factor * about.x, about.y - factor * about.y};
  }

  [[nodiscard]] Point apply(Point point) const {
    return {point.x * scale + x, point.y * scale + y};
  }
  [[nodiscard]] Rect apply(const Rect& rect) const {
    const Point a = apply(rect.origin());
    const Point b = apply(Point{rect.right(), rect.bottom()});
    return Rect::between(std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x),
                         std::max(a.y, b.y));
  }
  /// The transform that applies `inner` first and then this one.
  [[nodiscard]] Transform after(const Transform& inner) const {
    return {scale * inner.scale, scale * inner.x + x, scale * inner.y + y};
  }
  /// False when the scale is zero: then nothing is visible or hit through it.
  [[nodiscard]] bool isInvertible() const { return scale != 0; }
  /// Only for an invertible transform.
  [[nodiscard]] Transform inverse() const { return {1 / scale, -x / scale, -y / scale}; }
  [[nodiscard]] bool isTranslation() const { return scale == 1; }

  friend bool operator==(const Transform&, const Transform&) = default;
};

}  // namespace orvane::ui
