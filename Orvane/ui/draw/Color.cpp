// Resolving a colour: the platform's components, then the change that its use requires, then white
// and opacity.
#include "Orvane/ui/draw/Color.hpp"

#include <algorithm>

#include "Orvane/ui/draw/Legibility.hpp"

namespace orvane::ui {

namespace {

// Clamped to 0...1; 0 for what is not a number.
double unit(double value) {
  return value > 0 ? std::min(value, 1.0) : 0.0;
}

double mixWithWhite(double component, double fraction) {
  return component + (1 - component) * fraction;
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

Color Color::lighter(double fraction) const {
  Color result = *this;
  result.whiteFraction_ = mixWithWhite(whiteFraction_, unit(fraction));
  return result;
}

Color Color::usedAs(Use use) const {
  Color result = *this;
  result.use_ = use;
  return result;
}

Color Color::textOn(double backgroundLuminance, double veil, double minimumContrast) const {
  Color result = usedAs(Use::text);
  result.backgroundLuminance_ = unit(backgroundLuminance);
  result.veil_ = unit(veil);
  result.minimumContrast_ = minimumContrast;
  return result;
}

Color Color::buttonFill() const {
  return usedAs(Use::buttonFill);
}

Color Color::buttonLabel() const {
  return usedAs(Use::buttonLabel);
}

Rgba Color::forUse(const Rgba& base, const Appearance& appearance) const {
  const double required = legibility::requiredContrast(appearance);
  switch (use_) {
    case Use::any:
      return base;
    case Use::text:
      return legibility::textOn(legibility::veiled(backgroundLuminance_, base, veil_), base,
                                std::max(required, minimumContrast_));
    case Use::buttonFill:
      return legibility::buttonFill(base, required, gradientLight);
    case Use::buttonLabel:
      return legibility::buttonLabel(base);
  }
  return base;
}

Rgba Color::resolve(const Appearance& appearance, const ColorResolver& resolver) const {
  const Rgba base =
      forUse(name_ == SystemColor::fixed ? components_ : resolver(name_, appearance), appearance);
  return {mixWithWhite(base.red, whiteFraction_), mixWithWhite(base.green, whiteFraction_),
          mixWithWhite(base.blue, whiteFraction_), base.alpha * opacity_};
}

}  // namespace orvane::ui
