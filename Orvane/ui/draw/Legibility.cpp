// The formulas of WCAG 2.1, and a search for the smallest change.
#include "Orvane/ui/draw/Legibility.hpp"

#include <algorithm>
#include <cmath>

namespace orvane::ui::legibility {

namespace {

constexpr Rgba blackInk{0, 0, 0, 1};
constexpr Rgba whiteInk{1, 1, 1, 1};

double linearComponent(double component) {
  return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double encodedComponent(double linear) {
  return linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}

Rgba blend(const Rgba& color, const Rgba& ink, double fraction) {
  const auto between = [fraction](double from, double to) { return from + (to - from) * fraction; };
  return {between(color.red, ink.red), between(color.green, ink.green),
          between(color.blue, ink.blue), color.alpha};
}

// The colour with the smallest fraction of ink that suffices; the ink itself if none does. More ink
// never suffices less.
template <typename Suffices>
Rgba minimumBlend(const Rgba& color, const Rgba& ink, Suffices suffices) {
  if (suffices(color)) {
    return color;
  }
  double tooLittle = 0;
  double enough = 1;
  // Finer than a step of 8 bits.
  for (int step = 0; step < 10; ++step) {
    const double middle = (tooLittle + enough) / 2;
    (suffices(blend(color, ink, middle)) ? enough : tooLittle) = middle;
  }
  return blend(color, ink, enough);
}

// Whether the black that a white label requires would make the colour unrecognisable. Among the
// system's accent colours this is only yellow.
bool isLight(const Rgba& color) {
  return contrast(1, relativeLuminance(color)) < 2;
}

}  // namespace

double relativeLuminance(const Rgba& color) {
  return 0.2126 * linearComponent(color.red) + 0.7152 * linearComponent(color.green) +
         0.0722 * linearComponent(color.blue);
}

double contrast(double firstLuminance, double secondLuminance) {
  const auto [darker, lighter] = std::minmax(firstLuminance, secondLuminance);
  return (lighter + 0.05) / (darker + 0.05);
}

double veiled(double backgroundLuminance, const Rgba& veil, double opacity) {
  const double grey = encodedComponent(backgroundLuminance);
  return relativeLuminance(blend({grey, grey, grey, 1}, veil, opacity));
}

double requiredContrast(const Appearance& appearance) {
  return appearance.increaseContrast ? 4.5 : 3;
}

Rgba textOn(double backgroundLuminance, const Rgba& color, double required) {
  const bool isBackgroundLight =
      contrast(0, backgroundLuminance) > contrast(1, backgroundLuminance);
  return minimumBlend(color, isBackgroundLight ? blackInk : whiteInk, [&](const Rgba& tried) {
    const double luminance = relativeLuminance(tried);
    return (luminance < backgroundLuminance) == isBackgroundLight &&
           contrast(luminance, backgroundLuminance) >= required;
  });
}

Rgba buttonFill(const Rgba& color, double required, double whiteFraction) {
  if (isLight(color)) {
    return color;
  }
  return minimumBlend(color, blackInk, [&](const Rgba& tried) {
    return contrast(1, relativeLuminance(blend(tried, whiteInk, whiteFraction))) >= required;
  });
}

Rgba buttonLabel(const Rgba& color) {
  return isLight(color) ? blackInk : whiteInk;
}

}  // namespace orvane::ui::legibility
