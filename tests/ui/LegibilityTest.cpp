// Legible colours, changed as little as necessary, for any colour on any background.
#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/ui/draw/Legibility.hpp"

namespace orvane::ui {
namespace {

constexpr Rgba black{0, 0, 0, 1};
constexpr Rgba white{1, 1, 1, 1};
constexpr Rgba blue{0, 122 / 255.0, 1, 1};
constexpr Rgba yellow{1, 199 / 255.0, 38 / 255.0, 1};

double contrastOf(const Rgba& first, const Rgba& second) {
  return legibility::contrast(legibility::relativeLuminance(first),
                              legibility::relativeLuminance(second));
}

Rgba anyColor() {
  const auto component = [] { return *rc::gen::inRange(0, 256) / 255.0; };
  return {component(), component(), component(), 1};
}

/// In radians of the colour circle.
double hueOf(const Rgba& color) {
  return std::atan2(std::sqrt(3.0) * (color.green - color.blue),
                    2 * color.red - color.green - color.blue);
}
double chromaOf(const Rgba& color) {
  return std::max({color.red, color.green, color.blue}) -
         std::min({color.red, color.green, color.blue});
}

// Published figures of these pairs.
TEST(LegibilityTest, ContrastIsThatOfTheGuidelines) {
  EXPECT_NEAR(contrastOf(black, white), 21, 1e-9);
  EXPECT_NEAR(contrastOf({0.4666667, 0.4666667, 0.4666667, 1}, white), 4.48, 0.005);
  EXPECT_NEAR(contrastOf(white, {1, 0, 0, 1}), 4.00, 0.005);
  EXPECT_NEAR(contrastOf({0, 0, 1, 1}, white), 8.59, 0.005);
}

RC_GTEST_PROP(LegibilityTest, ATextReachesTheContrastInItsOwnHue, ()) {
  const Rgba color = anyColor();
  const double level = *rc::gen::inRange(0, 101) / 100.0;
  const Rgba ground{level, level, level, 1};
  const double required = *rc::gen::element(3.0, 4.5);
  const Rgba text = legibility::textOn(legibility::relativeLuminance(ground), color, required);
  RC_ASSERT(contrastOf(text, ground) >= required);
  if (chromaOf(text) > 0.02) {
    RC_ASSERT(std::abs(std::remainder(hueOf(text) - hueOf(color), 2 * M_PI)) < 0.001);
  }
}

RC_GTEST_PROP(LegibilityTest, ATextIsChangedNoFurtherThanNecessary, ()) {
  const Rgba color = anyColor();
  const double ground = *rc::gen::element(0.07, 0.8);
  const Rgba text = legibility::textOn(ground, color, 3);
  const double reached = legibility::contrast(legibility::relativeLuminance(text), ground);
  RC_ASSERT(text == color || reached < 3.06);
}

TEST(LegibilityTest, ALegibleColourStaysAsItIs) {
  EXPECT_EQ(legibility::textOn(1, blue, 3), blue);
  EXPECT_EQ(legibility::buttonFill(blue, 3, 0), blue);
}

TEST(LegibilityTest, AVeilMovesTheBackgroundTowardsItsColour) {
  for (const double luminance : {0.0, 0.001, 0.002, 0.003, 0.004, 0.5, 1.0}) {
    EXPECT_NEAR(legibility::veiled(luminance, white, 0), luminance, 1e-6);
  }
  EXPECT_NEAR(legibility::veiled(0.5, blue, 1), legibility::relativeLuminance(blue), 1e-9);
  EXPECT_LT(legibility::veiled(0.5, black, 0.2), 0.5);
}

RC_GTEST_PROP(LegibilityTest, ALabelIsLegibleOnItsFillAndWhereTheFillIsLightened, ()) {
  const Rgba color = anyColor();
  const double required = *rc::gen::element(3.0, 4.5);
  constexpr double light = 0.125;
  const Rgba fill = legibility::buttonFill(color, required, light);
  const auto lightened = [](double component) { return component + (1 - component) * light; };
  const Rgba top{lightened(fill.red), lightened(fill.green), lightened(fill.blue), 1};
  const Rgba label = legibility::buttonLabel(color);
  RC_ASSERT(contrastOf(label, fill) >= required);
  RC_ASSERT(contrastOf(label, top) >= required);
}

TEST(LegibilityTest, TheLabelIsBlackOnYellowAloneOfTheSystemsAccentColours) {
  EXPECT_EQ(legibility::buttonLabel(yellow), black);
  EXPECT_EQ(legibility::buttonFill(yellow, 4.5, 0.125), yellow);
  for (const Rgba& dark : {blue, Rgba{247 / 255.0, 130 / 255.0, 27 / 255.0, 1},
                           Rgba{98 / 255.0, 186 / 255.0, 70 / 255.0, 1}}) {
    EXPECT_EQ(legibility::buttonLabel(dark), white);
  }
}

}  // namespace
}  // namespace orvane::ui
