// A colour that stays semantic until it is drawn: a name or fixed components, what it is used for,
// an opacity, and a share of white mixed in.
#pragma once

#include <cstdint>
#include <functional>

#include "Orvane/ui/draw/Appearance.hpp"

namespace orvane::ui {

// The names a platform must be able to resolve. `fixed` carries its own components.
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

// Resolves a name for an appearance. It is asked whenever views are built; `fixed` is never asked.
using ColorResolver = std::function<Rgba(SystemColor, const Appearance&)>;

class Color {
 public:
  // The share of white at the top of Gradient::system: enough to be seen as light, not as another
  // colour.
  static constexpr double gradientLight = 0.125;

  static Color accent() { return Color(SystemColor::accent); }
  // The label colours, from strongest to faintest.
  static Color primary() { return Color(SystemColor::primary); }
  static Color secondary() { return Color(SystemColor::secondary); }
  static Color tertiary() { return Color(SystemColor::tertiary); }
  static Color windowBackground() { return Color(SystemColor::windowBackground); }
  static Color red() { return Color(SystemColor::red); }
  static Color green() { return Color(SystemColor::green); }
  static Color orange() { return Color(SystemColor::orange); }
  static Color blue() { return Color(SystemColor::blue); }
  static Color gray() { return Color(SystemColor::gray); }
  static Color white() { return rgb(1, 1, 1); }
  static Color black() { return rgb(0, 0, 0); }
  static Color clear() { return rgb(0, 0, 0, 0); }
  // Components from 0 to 1; values outside are clamped.
  static Color rgb(double red, double green, double blue, double alpha = 1);

  // The same colour with its opacity multiplied by a factor from 0 to 1 (clamped).
  Color opacity(double factor) const;
  // The same colour with white mixed in: 0 changes nothing, 1 is white.
  Color lighter(double share) const;

  // The same hue as a text that can be read on a ground of this relative luminance (0 to 1), also
  // under a veil of this colour in that opacity (0 to 1): as little darker or lighter as it takes.
  // The contrast is 3 to 1 at least; 4.5 to 1 where the user asks for contrast.
  Color textOn(double groundLuminance, double veil = 0, double minimumContrast = 3) const;
  // The same hue as the fill of a button, as little darker as its label takes, and the colour of
  // that label: white, or black on a light colour.
  Color buttonFill() const;
  Color buttonLabel() const;

  Rgba resolve(const Appearance& appearance, const ColorResolver& resolver) const;

  friend bool operator==(const Color&, const Color&) = default;

 private:
  enum class Use : std::uint8_t { any, text, buttonFill, buttonLabel };

  explicit Color(SystemColor name) : name_(name) {}

  Color usedAs(Use use) const;
  Rgba forUse(const Rgba& base, const Appearance& appearance) const;

  SystemColor name_;
  Rgba components_;
  Use use_ = Use::any;
  // Of a text.
  double groundLuminance_ = 0;
  double veil_ = 0;
  double minimumContrast_ = 0;
  double opacity_ = 1;
  double whiteShare_ = 0;
};

}  // namespace orvane::ui
