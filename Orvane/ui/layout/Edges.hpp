// Distances from the four edges of a rectangle, in points; leading is the left edge.
#pragma once

namespace orvane::ui {

enum class Edge { top, leading, bottom, trailing };

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

  friend bool operator==(const Edges&, const Edges&) = default;
};

}  // namespace orvane::ui
