// An outline of lines and cubic Bezier curves, for canvases to trace.
#pragma once

#include <vector>

#include "Orvane/ui/layout/Point.hpp"

namespace orvane::ui {

struct PathElement {
  enum class Kind { move, line, cubic, close };

  Kind kind = Kind::move;
  // The end of the element; without meaning for `close`.
  Point to;
  // The two control points of a cubic; without meaning otherwise.
  Point control1;
  Point control2;
};

class Path {
 public:
  void move(Point to) { elements_.push_back({PathElement::Kind::move, to, {}, {}}); }
  void line(Point to) { elements_.push_back({PathElement::Kind::line, to, {}, {}}); }
  void cubic(Point control1, Point control2, Point to) {
    elements_.push_back({PathElement::Kind::cubic, to, control1, control2});
  }
  void close() { elements_.push_back({PathElement::Kind::close, {}, {}, {}}); }

  const std::vector<PathElement>& elements() const { return elements_; }

 private:
  std::vector<PathElement> elements_;
};

}  // namespace orvane::ui
