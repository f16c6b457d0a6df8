// The light and dark values of the names.
#include "Orvane/ui/draw/StandardColors.hpp"

namespace orvane::ui {

namespace {

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
