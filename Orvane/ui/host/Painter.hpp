// Paints the retained tree as it was presented, onto any canvas.
#pragma once

#include "Orvane/ui/draw/Canvas.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

class Painter {
 public:
  // Nodes that paint nothing inside the dirty rectangle (host coordinates) are left out.
  Painter(Canvas& canvas, double now, const Rect& dirty)
      : canvas_(canvas), now_(now), dirty_(dirty) {}

  void paint(const Node& root) { visit(root, {0, 0}, true); }

 private:
  // The origin is where the parent's coordinates start on the canvas, in its present transform.
  void visit(const Node& node, Point origin, bool snapsToPixels);

  Canvas& canvas_;
  double now_;
  Rect dirty_;
};

}  // namespace orvane::ui
