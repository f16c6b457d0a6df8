// An outline of lines and cubic Bezier curves, for canvases to trace.
#pragma once

#include <vector>

#include "Orvane/ui/layout/Point.hpp"

namespace orvane::ui {

struct PathElement {
  enum class Kind { move, line, cubic, close };

  Kind kind = Kind::move;
  /// The end of the element; ignored for `close`.
  Point to = {};
  /// The control points of a cubic; ignored otherwise.
  Point control1 = {};
  Point control2 = {};
};

class Path {
 public:
  void move(Point to) { elements_.push_back({.kind = PathElement::Kind::move, .to = to}); }
  void line(Point to) { elements_.push_back({.kind = PathElement::Kind::line, .to = to}); }
  void cubic(Point control1, Point control2, Point to) {
    elements_.push_back({PathElement::Kind::cubic, to, control1, control2});
  }
  void close() { elements_.push_back({.kind = PathElement::Kind::close}); }

  [[nodiscard]] const std::vector<PathElement>& elements() const { return elements_; }

 private:
  std::vector<PathElement> elements_;
};

}  // namespace orvane::ui
