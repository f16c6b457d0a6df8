// Making gradients.
#include "Orvane/ui/draw/Fill.hpp"

namespace orvane::ui {

Fill Fill::gradient(std::initializer_list<Color> colors, UnitPoint start, UnitPoint end) {
  Fill result;
  result.start = start;
  result.end = end;
  const double steps = colors.size() > 1 ? static_cast<double>(colors.size() - 1) : 1.0;
  double index = 0;
  for (const Color& color : colors) {
    result.stops.push_back({color, index / steps});
    index += 1;
  }
  return result;
}

Fill Fill::systemGradient(const Color& color) {
  return gradient({color.lighter(Color::gradientLight), color});
}

Fill Fill::opacity(double factor) const {
  Fill result = *this;
  for (FillStop& stop : result.stops) {
    stop.color = stop.color.opacity(factor);
  }
  return result;
}

}  // namespace orvane::ui
