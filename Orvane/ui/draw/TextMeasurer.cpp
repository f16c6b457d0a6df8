// The sizes of a paragraph and of its lines.
#include "Orvane/ui/draw/TextMeasurer.hpp"

#include <algorithm>
#include <cmath>

namespace orvane::ui {

double lineHeightFor(double ascent, double descent) {
  // A rounding error of the sum does not count as another point.
  constexpr double slack = 1.0e-6;
  return std::ceil(ascent + descent - slack);
}

Size TextLayout::size() const {
  Size result{0, lineHeight * static_cast<double>(lines.size())};
  for (const TextLine& line : lines) {
    result.width = std::max(result.width, line.width);
  }
  return result;
}

}  // namespace orvane::ui
