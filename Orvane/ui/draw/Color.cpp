// Resolving a colour: the platform's components, then the change that its use requires, then white
// and opacity. The light and dark values of the standard names.
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

// Components from 0 to 255.
Rgba bytes(double red, double green, double blue) {
  return {red / 255, green / 255, blue / 255, 1};
}

// Labels are black in the light appearance and white in the dark one.
Rgba label(const Appearance& appearance, double lightAlpha, double darkAlpha,
           double contrastAlpha) {
  const double component = appearance.dark ? 1 : 0;
  const double alpha = appearance.increaseContrast ? contrastAlpha
                       : appearance.dark           ? darkAlpha
                                                   : lightAlpha;
  return {component, component, component, alpha};
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

Rgba standardColor(SystemColor name, const Appearance& appearance) {
  const bool dark = appearance.dark;
  switch (name) {
    case SystemColor::fixed:
      return {};
    case SystemColor::accent:
      return appearance.accent ? *appearance.accent : standardColor(SystemColor::blue, appearance);
    case SystemColor::primary:
      return label(appearance, 0.85, 0.85, 1.0);
    case SystemColor::secondary:
      // AppKit's are 0.5 and 0.55, strengthened over glass by vibrancy. Without it they would not
      // reach a contrast of 4.5 to 1, even black on pure white.
      return label(appearance, 0.6, 0.7, 0.8);
    case SystemColor::tertiary:
      return label(appearance, 0.26, 0.25, 0.45);
    case SystemColor::windowBackground:
      return dark ? bytes(50, 50, 50) : bytes(236, 236, 236);
    case SystemColor::red:
      return dark ? bytes(255, 69, 58) : bytes(255, 59, 48);
    case SystemColor::green:
      return dark ? bytes(50, 215, 75) : bytes(40, 205, 65);
    case SystemColor::orange:
      return dark ? bytes(255, 159, 10) : bytes(255, 149, 0);
    case SystemColor::blue:
      return dark ? bytes(10, 132, 255) : bytes(0, 122, 255);
    case SystemColor::gray:
      return dark ? bytes(152, 152, 157) : bytes(142, 142, 147);
  }
  return {};
}

}  // namespace orvane::ui
