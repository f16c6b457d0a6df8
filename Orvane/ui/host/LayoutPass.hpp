// One run of layout: remembers what was measured and moves nodes to where they are placed.
#pragma once

#include "Orvane/ui/draw/ImageSource.hpp"
#include "Orvane/ui/draw/TextMeasurer.hpp"
#include "Orvane/ui/layout/UnitPoint.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

class LayoutPass {
 public:
  LayoutPass(TextMeasurer& text, const ImageSource& images, double now)
      : text_(text), images_(images), now_(now) {}

  TextMeasurer& text() { return text_; }
  const ImageSource& images() const { return images_; }
  double now() const { return now_; }

  // The size that the node chooses; never negative and always a number, but infinite if it was
  // offered infinity and takes everything.
  Size measure(Node& node, const Proposal& proposal);
  // Gives the node the size it chooses for the proposal, with its top left corner at the origin in
  // its parent. Coordinates that are not finite become zero.
  void place(Node& node, Point origin, const Proposal& proposal);
  // The same, aligned inside a container of the parent's coordinates that starts at its origin.
  void placeAligned(Node& node, Size container, Alignment alignment, const Proposal& proposal);

 private:
  TextMeasurer& text_;
  const ImageSource& images_;
  double now_;
};

}  // namespace orvane::ui
