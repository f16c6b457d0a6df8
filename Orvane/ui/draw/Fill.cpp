// Making gradients.
#include "Orvane/ui/draw/Fill.hpp"

namespace orvane::ui {

Gradient Gradient::linear(std::initializer_list<Color> colors, UnitPoint start, UnitPoint end) {
  Gradient result{.start = start, .end = end};
  const double steps = colors.size() > 1 ? static_cast<double>(colors.size() - 1) : 1.0;
  double index = 0;
  for (const Color& color : colors) {
    result.stops.push_back({color, index / steps});
    index += 1;
  }
  return result;
}

Gradient Gradient::system(const Color& color) {
  return linear({color.lighter(Color::gradientLight), color});
}

Gradient Gradient::opacity(double factor) const {
  Gradient result = *this;
  for (GradientStop& stop : result.stops) {
    stop.color = stop.color.opacity(factor);
  }
  return result;
}

}  // namespace orvane::ui
