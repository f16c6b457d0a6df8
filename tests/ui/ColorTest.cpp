// Semantic colours, resolved for an appearance.
#include <limits>
#include <utility>

#include <gtest/gtest.h>

#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/draw/Fill.hpp"

namespace orvane::ui {
namespace {

constexpr Appearance dark{true, {}, false, false};
constexpr Appearance highContrast{false, {}, true, false};

Rgba resolved(const Color& color, const Appearance& appearance = {}) {
  return color.resolve(appearance, standardColor);
}

TEST(ColorTest, SystemColoursFollowTheAppearance) {
  using enum SystemColor;
  const auto expectBytes = [](SystemColor name, const Rgba& byDay, const Rgba& byNight) {
    for (const auto& [appearance, bytes] : {std::pair{Appearance(), byDay}, {dark, byNight}}) {
      EXPECT_EQ(standardColor(name, appearance),
                (Rgba{bytes.red / 255, bytes.green / 255, bytes.blue / 255, 1}));
    }
  };
  expectBytes(windowBackground, {236, 236, 236}, {50, 50, 50});
  expectBytes(red, {255, 59, 48}, {255, 69, 58});
  expectBytes(green, {40, 205, 65}, {50, 215, 75});
  expectBytes(orange, {255, 149, 0}, {255, 159, 10});
  expectBytes(blue, {0, 122, 255}, {10, 132, 255});
  expectBytes(gray, {142, 142, 147}, {152, 152, 157});
  const auto expectInk = [](SystemColor name, double byDay, double byNight, double strong) {
    EXPECT_EQ(standardColor(name, {}), (Rgba{0, 0, 0, byDay}));
    EXPECT_EQ(standardColor(name, dark), (Rgba{1, 1, 1, byNight}));
    EXPECT_EQ(standardColor(name, highContrast), (Rgba{0, 0, 0, strong}));
  };
  expectInk(primary, 0.85, 0.85, 1);
  expectInk(secondary, 0.6, 0.7, 0.8);
  expectInk(tertiary, 0.26, 0.25, 0.45);
}

TEST(ColorTest, TheAccentIsTheUsersChoiceOrBlue) {
  EXPECT_EQ(resolved(Color::accent(), dark), (Rgba{10 / 255.0, 132 / 255.0, 1, 1}));
  const Rgba chosen{0.5, 0.25, 0, 1};
  EXPECT_EQ(resolved(Color::accent(), {false, chosen, false, false}), chosen);
}

TEST(ColorTest, OpacitiesMultiply) {
  EXPECT_DOUBLE_EQ(resolved(Color::secondary().opacity(0.5).opacity(0.5)).alpha, 0.15);
  EXPECT_EQ(resolved(Color::white().opacity(7)).alpha, 1);
  EXPECT_EQ(resolved(Color::white().opacity(-1)).alpha, 0);
  EXPECT_EQ(resolved(Color::white().opacity(std::numeric_limits<double>::quiet_NaN())).alpha, 0);
}

TEST(ColorTest, FixedColoursDoNotAskThePlatform) {
  const ColorResolver forbidden = [](SystemColor, const Appearance&) -> Rgba {
    ADD_FAILURE() << "asked";
    return {};
  };
  EXPECT_EQ(Color::rgb(0.2, 0.4, 0.6, 0.8).resolve({}, forbidden), (Rgba{0.2, 0.4, 0.6, 0.8}));
}

TEST(ColorTest, AGradientSpacesItsColoursEvenlyFromTopToBottom) {
  const Fill gradient = Fill::gradient({Color::white(), Color::black(), Color::white()});
  ASSERT_EQ(gradient.stops.size(), 3U);
  EXPECT_EQ(gradient.stops[1].location, 0.5);
  EXPECT_EQ(gradient.stops[2].location, 1);
  EXPECT_EQ(gradient.start.in({10, 20, 30, 40}), (Point{25, 20}));
  EXPECT_EQ(gradient.end.in({10, 20, 30, 40}), (Point{25, 60}));
}

}  // namespace
}  // namespace orvane::ui
