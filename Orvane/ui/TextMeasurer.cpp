// The size of a broken paragraph.
#include "Orvane/ui/TextMeasurer.hpp"

#include <algorithm>

namespace orvane::ui {

Size TextLayout::size() const {
  Size result{0, lineHeight * static_cast<double>(lines.size())};
  for (const TextLine& line : lines) {
    result.width = std::max(result.width, line.width);
  }
  return result;
}

}  // namespace orvane::ui
