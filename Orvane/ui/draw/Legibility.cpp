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

Rgba blend(const Rgba& color, const Rgba& ink, double share) {
  const auto between = [share](double from, double to) { return from + (to - from) * share; };
  return {between(color.red, ink.red), between(color.green, ink.green),
          between(color.blue, ink.blue), color.alpha};
}

// The colour with the smallest share of the ink that will do; the ink itself if none does. More ink
// never does worse.
template <typename WillDo>
Rgba leastBlend(const Rgba& color, const Rgba& ink, WillDo willDo) {
  if (willDo(color)) {
    return color;
  }
  double tooLittle = 0;
  double enough = 1;
  // Finer than a step of 8 bits.
  for (int step = 0; step < 10; ++step) {
    const double middle = (tooLittle + enough) / 2;
    (willDo(blend(color, ink, middle)) ? enough : tooLittle) = middle;
  }
  return blend(color, ink, enough);
}

// White on a colour as light as this could be read only after so much black that nobody would know
// the colour again. Of the system's accent colours it is yellow alone.
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

double veiled(double groundLuminance, const Rgba& veil, double opacity) {
  const double grey = encodedComponent(groundLuminance);
  return relativeLuminance(blend({grey, grey, grey, 1}, veil, opacity));
}

double requiredContrast(const Appearance& appearance) {
  return appearance.increaseContrast ? 4.5 : 3;
}

Rgba textOn(double groundLuminance, const Rgba& color, double required) {
  const bool isGroundLight = contrast(0, groundLuminance) > contrast(1, groundLuminance);
  return leastBlend(color, isGroundLight ? blackInk : whiteInk, [&](const Rgba& tried) {
    const double luminance = relativeLuminance(tried);
    return (luminance < groundLuminance) == isGroundLight &&
           contrast(luminance, groundLuminance) >= required;
  });
}

Rgba buttonFill(const Rgba& color, double required, double lightShare) {
  if (isLight(color)) {
    return color;
  }
  return leastBlend(color, blackInk, [&](const Rgba& tried) {
    return contrast(1, relativeLuminance(blend(tried, whiteInk, lightShare))) >= required;
  });
}

Rgba buttonLabel(const Rgba& color) {
  return isLight(color) ? blackInk : whiteInk;
}

}  // namespace orvane::ui::legibility
