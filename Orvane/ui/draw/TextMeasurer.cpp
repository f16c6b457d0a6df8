// The sizes of a broken paragraph and of its lines.
#include "Orvane/ui/draw/TextMeasurer.hpp"

#include <algorithm>
#include <cmath>

namespace orvane::ui {

double lineHeightFor(double ascent, double descent) {
  // What adding has left over is no point of its own.
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
