// A window onto content that may be wider than it: scrolls horizontally, without indicators.
#pragma once

#include <algorithm>

#include "Orvane/ui/Node.hpp"
#include "Orvane/ui/View.hpp"

namespace orvane::ui {

// What the node of a scroll view keeps.
struct ScrollData {
  // How far the content has moved towards the leading side, in points; from 0 to `most`.
  double offset = 0;
  double most = 0;

  // Moves by a distance within the limits; false when nothing moved.
  bool scrollBy(double distance) {
    const double previous = offset;
    offset = std::clamp(offset + distance, 0.0, most);
    return offset != previous;
  }
};

// Takes the width it is offered and the height of its content.
class ScrollView : public View {
 public:
  explicit ScrollView(const View& content);
};

// The scroll state of a node, or null when it is no scroll view.
ScrollData* scrollData(Node& node);

}  // namespace orvane::ui
