// The draw pass: draws the presented tree onto a canvas. It changes nothing that is presented.
#pragma once

#include "Orvane/ui/draw/Canvas.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

class DrawPass {
 public:
  /// Skips nodes without ink in the dirty rectangle (host coordinates).
  DrawPass(Canvas& canvas, double now, const Rect& dirty)
      : canvas_(canvas), now_(now), dirty_(dirty) {}

  void draw(const Node& root) { visit(root, {0, 0}, true); }

 private:
  // The origin of the parent's coordinates on the canvas, in its present transform.
  void visit(const Node& node, Point origin, bool snapsToPixels);

  Canvas& canvas_;
  double now_;
  Rect dirty_;
};

}  // namespace orvane::ui
