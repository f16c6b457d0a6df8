// Resolving a semantic colour: the platform's answer first, then white and opacity on top.
#include "Orvane/ui/Color.hpp"

#include <algorithm>

namespace orvane::ui {

namespace {

// Clamps to 0...1; what is not a number becomes 0.
double unit(double value) {
  return value > 0 ? std::min(value, 1.0) : 0.0;
}

double mixWithWhite(double component, double share) {
  return component + (1 - component) * share;
}

}  // namespace

Color Color::rgb(double red, double green, double blue, double alpha) {
  Color result(SystemColor::fixed);
  result.components_ = {unit(red), unit(green), unit(blue), unit(alpha)};
  return result;
}

Color Color::opacity(double factor) const {
  Color result = *this;
  result.opacity_ *= unit(factor);
  return result;
}

Color Color::lighter(double share) const {
  Color result = *this;
  result.whiteShare_ = mixWithWhite(whiteShare_, unit(share));
  return result;
}

Rgba Color::resolve(const Appearance& appearance, const ColorResolver& resolver) const {
  const Rgba base = name_ == SystemColor::fixed ? components_ : resolver(name_, appearance);
  return {mixWithWhite(base.red, whiteShare_), mixWithWhite(base.green, whiteShare_),
          mixWithWhite(base.blue, whiteShare_), base.alpha * opacity_};
}

}  // namespace orvane::ui
