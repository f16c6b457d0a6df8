// Distances from the four edges of a rectangle, in points; leading is the left edge.
#pragma once

namespace orvane::ui {

enum class Edge { top, leading, bottom, trailing };

struct ChainedEdges;

struct Edges {
  double top = 0;
  double leading = 0;
  double bottom = 0;
  double trailing = 0;

  static Edges all(double distance) { return {distance, distance, distance, distance}; }
  // These two start a chain: Edges::horizontal(13).vertical(8).
  static ChainedEdges horizontal(double distance);
  static ChainedEdges vertical(double distance);
  static Edges only(Edge edge, double distance) { return Edges{}.with(edge, distance); }

  // The same distances with one of them replaced.
  Edges with(Edge edge, double distance) const {
    Edges result = *this;
    switch (edge) {
      case Edge::top:
        result.top = distance;
        break;
      case Edge::leading:
        result.leading = distance;
        break;
      case Edge::bottom:
        result.bottom = distance;
        break;
      case Edge::trailing:
        result.trailing = distance;
        break;
    }
    return result;
  }

  double width() const { return leading + trailing; }
  double height() const { return top + bottom; }

  friend bool operator==(const Edges&, const Edges&) = default;
};

// Edges whose pairs can be set one after the other.
struct ChainedEdges : Edges {
  ChainedEdges horizontal(double distance) const {
    ChainedEdges result = *this;
    result.leading = distance;
    result.trailing = distance;
    return result;
  }
  ChainedEdges vertical(double distance) const {
    ChainedEdges result = *this;
    result.top = distance;
    result.bottom = distance;
    return result;
  }
};

inline ChainedEdges Edges::horizontal(double distance) {
  return ChainedEdges{}.horizontal(distance);
}
inline ChainedEdges Edges::vertical(double distance) {
  return ChainedEdges{}.vertical(distance);
}

}  // namespace orvane::ui
