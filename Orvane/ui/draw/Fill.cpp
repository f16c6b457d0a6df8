// Making gradients, and resolving them for a rectangle.
#include "Orvane/ui/draw/Fill.hpp"

namespace orvane::ui {

Gradient Gradient::linear(std::initializer_list<Color> colors, UnitPoint start, UnitPoint end) {
  Gradient result{{}, start, end};
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

Paint Fill::resolve(const Rect& rect, const Appearance& appearance,
                    const ColorResolver& resolver) const {
  Paint paint;
  for (const GradientStop& stop : gradient_.stops) {
    paint.stops.push_back({stop.color.resolve(appearance, resolver), stop.location});
  }
  paint.start = gradient_.start.in(rect);
  paint.end = gradient_.end.in(rect);
  return paint;
}

}  // namespace orvane::ui
