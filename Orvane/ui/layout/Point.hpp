// A point on a surface: origin at the top left, y downwards, in points.
#pragma once

namespace orvane::ui {

struct Point {
  double x = 0;
  double y = 0;

  friend bool operator==(const Point&, const Point&) = default;
  friend Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
  friend Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
};

}  // namespace orvane::ui
