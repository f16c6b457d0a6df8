// The layout pass: measures nodes and places them.
#pragma once

#include "Orvane/ui/draw/ImageSource.hpp"
#include "Orvane/ui/draw/TextMeasurer.hpp"
#include "Orvane/ui/layout/Rect.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

/// Sizes are kept in the nodes until the next build pass. Lengths are points.
struct LayoutPass {
  TextMeasurer& text;
  const ImageSource& images;
  double now;

  /// The size that the node chooses: never negative, always a number, and infinite only for a node
  /// that takes all of an infinite proposal.
  [[nodiscard]] Size measure(Node& node, const Proposal& proposal);
  /// Gives the node the size it chooses for the proposal, with its top left corner at the origin,
  /// in the parent's coordinates. Coordinates that are not finite become zero.
  void place(Node& node, Point origin, const Proposal& proposal);
  /// The same, aligned in a container whose origin is that of the parent.
  void placeAligned(Node& node, Size container, Alignment alignment, const Proposal& proposal);
};

}  // namespace orvane::ui
