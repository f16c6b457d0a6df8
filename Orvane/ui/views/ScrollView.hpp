// A horizontally scrolling view without indicators.
#pragma once

#include "Orvane/ui/views/Node.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

/// Takes the proposed width and the height of its content. The margin, in points, lies before and
/// after the content, and on both sides of a view that is scrolled into view.
struct [[nodiscard]] ScrollView : View {
  explicit ScrollView(const View& content, double margin = 0);
};

/// Whether the node is that of a scroll view.
[[nodiscard]] bool isScrollView(const Node& node);

/// Scrolls a scroll view's node at once, by a distance in points from what is presented, within its
/// limits. False when it cannot move or is no scroll view.
bool scrollBy(Node& node, double distance, double now);

/// Scrolls all scroll views around the node as far as necessary to make it visible, along the curve
/// or at once.
void scrollIntoView(const Node& node, const std::optional<Curve>& curve, double now);

}  // namespace orvane::ui
