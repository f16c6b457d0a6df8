// A window onto content that may be wider than it: scrolls horizontally, without indicators.
#pragma once

#include "Orvane/ui/views/Node.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

// What the node of a scroll view keeps.
struct ScrollData {
  // Of the content towards the leading side, in points.
  double maximumOffset = 0;
  double margin = 0;
};

// Takes the width it is offered and the height of its content. The margin, in points, lies before
// and after the content, and is kept on both sides of what is brought into sight.
class ScrollView : public View {
 public:
  explicit ScrollView(const View& content, double margin = 0);
};

// Null when the node is no scroll view.
const ScrollData* scrollData(const Node& node);

// Scrolls the content of a scroll view's node that far from its beginning, within the limits: along
// the curve, or at once. False when it is there already.
bool scrollTo(Node& area, double offset, const std::optional<Curve>& curve, double now);
// The same by a distance from where the content is seen now.
bool scrollBy(Node& area, double distance, double now);
// The same as far as it takes to bring a node below it into sight.
void scrollIntoView(Node& area, const Node& node, const std::optional<Curve>& curve, double now);

}  // namespace orvane::ui
