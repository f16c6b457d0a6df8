// A semantic colour: a name or fixed components, its use, an opacity, and a fraction of white. It
// is resolved for an appearance when it is drawn.
#pragma once

#include <cstdint>
#include <functional>

#include "Orvane/ui/draw/Appearance.hpp"

namespace orvane::ui {

/// The names that a platform resolves. `fixed` stands for the colour's own components.
enum class SystemColor {
  fixed,
  accent,
  primary,
  secondary,
  tertiary,
  windowBackground,
  red,
  green,
  orange,
  blue,
  gray
};

/// Resolves a name, never `fixed`, for an appearance. Called whenever views are built.
using ColorResolver = std::function<Rgba(SystemColor, const Appearance&)>;

/// The ColorResolver of a platform without semantic colours of its own. Increased contrast
/// strengthens the label colours.
[[nodiscard]] Rgba standardColor(SystemColor name, const Appearance& appearance);

class Color {
 public:
  /// The fraction of white at the top of Fill::systemGradient: visible as light, not as another
  /// colour.
  static constexpr double gradientLight = 0.125;

  [[nodiscard]] static Color accent() { return Color(SystemColor::accent); }
  /// The label colours, from strongest to faintest.
  [[nodiscard]] static Color primary() { return Color(SystemColor::primary); }
  [[nodiscard]] static Color secondary() { return Color(SystemColor::secondary); }
  [[nodiscard]] static Color tertiary() { return Color(SystemColor::tertiary); }
  [[nodiscard]] static Color windowBackground() { return Color(SystemColor::windowBackground); }
  [[nodiscard]] static Color red() { return Color(SystemColor::red); }
  [[nodiscard]] static Color green() { return Color(SystemColor::green); }
  [[nodiscard]] static Color orange() { return Color(SystemColor::orange); }
  [[nodiscard]] static Color blue() { return Color(SystemColor::blue); }
  [[nodiscard]] static Color gray() { return Color(SystemColor::gray); }
  [[nodiscard]] static Color white() { return rgb(1, 1, 1); }
  [[nodiscard]] static Color black() { return rgb(0, 0, 0); }
  [[nodiscard]] static Color clear() { return rgb(0, 0, 0, 0); }
  /// Components from 0 to 1 (clamped).
  [[nodiscard]] static Color rgb(double red, double green, double blue, double alpha = 1);

  /// The colour with its opacity multiplied by a factor from 0 to 1 (clamped).
  [[nodiscard]] Color opacity(double factor) const;
  /// The colour with a fraction of white mixed in, from 0 (no change) to 1 (white).
  [[nodiscard]] Color lighter(double fraction) const;

  /// A text colour of the same hue, changed as little as legibility requires on a background of
  /// this relative luminance (0 to 1), and on one under a veil of this colour with the opacity
  /// `veil` (0 to 1). The minimum contrast rises to 4.5 where the user asks for increased contrast.
  [[nodiscard]] Color textOn(double backgroundLuminance, double veil = 0,
                             double minimumContrast = 3) const;
  /// A button's fill of the same hue, darkened as little as its label requires, and the colour of
  /// the label: white, or black on a light colour.
  [[nodiscard]] Color buttonFill() const;
  [[nodiscard]] Color buttonLabel() const;

  [[nodiscard]] Rgba resolve(const Appearance& appearance, const ColorResolver& resolver) const;

 private:
  enum class Use : std::uint8_t { any, text, buttonFill, buttonLabel };

  explicit Color(SystemColor name) : name_(name) {}

  [[nodiscard]] Color usedAs(Use use) const;
  [[nodiscard]] Rgba forUse(const Rgba& base, const Appearance& appearance) const;

  SystemColor name_;
  Rgba components_;
  Use use_ = Use::any;
  /// Of a text.
  double backgroundLuminance_ = 0;
  double veil_ = 0;
  double minimumContrast_ = 0;
  double opacity_ = 1;
  double whiteFraction_ = 0;
};

}  // namespace orvane::ui
