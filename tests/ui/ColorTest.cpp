// Semantic colours, resolved for an appearance.
#include <limits>

#include <gtest/gtest.h>

#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/draw/Fill.hpp"
#include "Orvane/ui/draw/StandardColors.hpp"

namespace orvane::ui {
namespace {

Rgba resolved(const Color& color, bool dark) {
  Appearance appearance;
  appearance.dark = dark;
  return color.resolve(appearance, standardColor);
}

TEST(ColorTest, ASemanticColourFollowsTheAppearance) {
  EXPECT_EQ(resolved(Color::primary(), false), (Rgba{0, 0, 0, 0.85}));
  EXPECT_EQ(resolved(Color::primary(), true), (Rgba{1, 1, 1, 0.85}));
  EXPECT_EQ(resolved(Color::secondary(), false).alpha, 0.6);
  EXPECT_EQ(resolved(Color::secondary(), true).alpha, 0.7);
  EXPECT_EQ(resolved(Color::tertiary(), true).alpha, 0.25);
  EXPECT_EQ(resolved(Color::red(), true), (Rgba{1, 69 / 255.0, 58 / 255.0, 1}));
}

TEST(ColorTest, TheAccentIsTheUsersChoiceOrBlue) {
  EXPECT_EQ(resolved(Color::accent(), false), resolved(Color::blue(), false));
  Appearance appearance;
  appearance.accent = Rgba{0.5, 0.25, 0, 1};
  EXPECT_EQ(Color::accent().resolve(appearance, standardColor), (Rgba{0.5, 0.25, 0, 1}));
}

TEST(ColorTest, OpacitiesMultiply) {
  EXPECT_DOUBLE_EQ(resolved(Color::secondary().opacity(0.5).opacity(0.5), false).alpha, 0.15);
  EXPECT_EQ(resolved(Color::white().opacity(7), false).alpha, 1);
  EXPECT_EQ(resolved(Color::white().opacity(-1), false).alpha, 0);
  EXPECT_EQ(resolved(Color::white().opacity(std::numeric_limits<double>::quiet_NaN()), false).alpha,
            0);
}

TEST(ColorTest, IncreasedContrastStrengthensLabels) {
  Appearance appearance;
  const double usual = Color::secondary().resolve(appearance, standardColor).alpha;
  appearance.increaseContrast = true;
  EXPECT_GT(Color::secondary().resolve(appearance, standardColor).alpha, usual);
}

TEST(ColorTest, FixedColoursDoNotAskThePlatform) {
  const ColorResolver forbidden = [](SystemColor, const Appearance&) -> Rgba {
    ADD_FAILURE() << "asked";
    return {};
  };
  EXPECT_EQ(Color::rgb(0.2, 0.4, 0.6, 0.8).resolve({}, forbidden), (Rgba{0.2, 0.4, 0.6, 0.8}));
}

TEST(ColorTest, AGradientSpacesItsColoursEvenlyFromTopToBottom) {
  const Gradient gradient = Gradient::linear({Color::white(), Color::black(), Color::white()});
  ASSERT_EQ(gradient.stops.size(), 3U);
  EXPECT_EQ(gradient.stops[1].location, 0.5);
  EXPECT_EQ(gradient.stops[2].location, 1);
  EXPECT_EQ(gradient.start.in({10, 20, 30, 40}), (Point{25, 20}));
  EXPECT_EQ(gradient.end.in({10, 20, 30, 40}), (Point{25, 60}));
}

}  // namespace
}  // namespace orvane::ui
