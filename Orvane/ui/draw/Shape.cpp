// The outlines of the shapes as lines and cubic Bezier curves.
#include "Orvane/ui/draw/Shape.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace orvane::ui {

namespace {

// A corner between the incoming and the outgoing edge. `corner` is the corner of the rectangle;
// `along` is the direction back along the incoming edge, `down` that along the outgoing one.
struct Corner {
  Point corner;
  Point along;
  Point down;

  Point at(double back, double away) const {
    return {corner.x + along.x * back + down.x * away, corner.y + along.y * back + down.y * away};
  }
};

// Draws the arc of a circle of the radius, centred `radius` inside both edges, between two angles
// measured from the incoming edge's normal. The control length 4/3 tan(angle/4) makes the cubic
// agree with the circle at its ends and its middle.
void arc(Path& path, const Corner& corner, double radius, double from, double to) {
  const double control = 4.0 / 3.0 * std::tan((to - from) / 4) * radius;
  const auto onCircle = [&](double angle, double tangent) {
    return corner.at(radius - radius * std::sin(angle) - tangent * std::cos(angle),
                     radius - radius * std::cos(angle) + tangent * std::sin(angle));
  };
  path.cubic(onCircle(from, control), onCircle(to, -control), onCircle(to, 0));
}

// A corner with continuous curvature: a cubic from the edge (curvature zero) turns by `angle`, an
// arc of the radius turns the rest, and a mirrored cubic leads to the other edge. The second
// control point is where the tangents meet; the first is placed so that the cubic's end curvature,
// 2/3 * (distance of the first control point from the end tangent) / (end handle)^2, is 1/radius.
void continuousCorner(Path& path, const Corner& corner, double radius, double smoothing) {
  const double angle = std::numbers::pi / 4 * smoothing;
  const double handle = radius * std::tan(angle / 2);
  const double start = radius * (1 + smoothing / 2);
  const double second = radius - handle;
  const double first = second + 1.5 * handle * handle / (radius * std::sin(angle));
  const double arcBack = radius - radius * std::sin(angle);
  const double arcAway = radius - radius * std::cos(angle);

  path.line(corner.at(start, 0));
  path.cubic(corner.at(first, 0), corner.at(second, 0), corner.at(arcBack, arcAway));
  arc(path, corner, radius, angle, std::numbers::pi / 2 - angle);
  path.cubic(corner.at(0, second), corner.at(0, first), corner.at(0, start));
}

void roundCorner(Path& path, const Corner& corner, double radius, double smoothing) {
  // Below this fraction the bend is a circle to the eye, and the formula above divides by nearly
  // zero.
  constexpr double minimumSmoothing = 0.01;
  if (smoothing > minimumSmoothing) {
    continuousCorner(path, corner, radius, smoothing);
    return;
  }
  path.line(corner.at(radius, 0));
  arc(path, corner, radius, 0, std::numbers::pi / 2);
}

Path ellipsePath(const Rect& rect) {
  // The usual four cubics of a circle: control length 4/3 tan(pi/8) of the radius.
  const double control = 4.0 / 3.0 * std::tan(std::numbers::pi / 8);
  const Point center = rect.center();
  const double radiusX = rect.width / 2;
  const double radiusY = rect.height / 2;
  const auto at = [&](double x, double y) {
    return Point{center.x + x * radiusX, center.y + y * radiusY};
  };
  Path path;
  path.move(at(0, -1));
  path.cubic(at(control, -1), at(1, -control), at(1, 0));
  path.cubic(at(1, control), at(control, 1), at(0, 1));
  path.cubic(at(-control, 1), at(-1, control), at(-1, 0));
  path.cubic(at(-1, -control), at(-control, -1), at(0, -1));
  path.close();
  return path;
}

}  // namespace

Shape Shape::in(const Rect& other) const {
  if (kind == Kind::circle) {
    const double side = std::min(other.width, other.height);
    const Point center = other.center();
    return ellipse({center.x - side / 2, center.y - side / 2, side, side});
  }
  Shape result = *this;
  result.rect = other;
  return result;
}

Shape Shape::inset(double distance) const {
  Shape result = *this;
  result.rect = rect.inset(distance);
  if (kind == Kind::roundedRectangle && cornerRadius > 0) {
    result.cornerRadius = std::max(0.0, effectiveRadius() - distance);
  }
  return result;
}

double Shape::effectiveRadius() const {
  const double limit = std::min(rect.width, rect.height) / 2;
  switch (kind) {
    case Kind::rectangle:
      return 0;
    case Kind::roundedRectangle:
      return std::clamp(cornerRadius, 0.0, limit);
    case Kind::capsule:
    case Kind::circle:
    case Kind::ellipse:
      return limit;
  }
  return 0;
}

Path Shape::path() const {
  if (rect.isEmpty()) {
    return {};
  }
  if (kind == Kind::circle || kind == Kind::ellipse) {
    return ellipsePath(rect);
  }
  Path path;
  const double radius = effectiveRadius();
  if (radius <= 0) {
    path.move(rect.origin());
    path.line({rect.right(), rect.y});
    path.line({rect.right(), rect.bottom()});
    path.line({rect.x, rect.bottom()});
    path.close();
    return path;
  }
  // With eight tenths of its turn in the two cubics a corner is seen as smooth, and it is nowhere
  // bent by a fifth more than its circle. Near the middle of a short side there may be less room.
  constexpr double fullSmoothing = 0.8;
  const double room = 2 * (std::min(rect.width, rect.height) / 2 / radius - 1);
  const bool smooth = kind == Kind::roundedRectangle && cornerStyle == CornerStyle::continuous;
  const double smoothing = smooth ? std::clamp(room, 0.0, fullSmoothing) : 0.0;
  path.move({rect.x + radius * (1 + smoothing / 2), rect.y});
  roundCorner(path, {{rect.right(), rect.y}, {-1, 0}, {0, 1}}, radius, smoothing);
  roundCorner(path, {{rect.right(), rect.bottom()}, {0, -1}, {-1, 0}}, radius, smoothing);
  roundCorner(path, {{rect.x, rect.bottom()}, {1, 0}, {0, -1}}, radius, smoothing);
  roundCorner(path, {rect.origin(), {0, 1}, {1, 0}}, radius, smoothing);
  path.close();
  return path;
}

}  // namespace orvane::ui
