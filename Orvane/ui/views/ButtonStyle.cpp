// The two standard styles.
#include "Orvane/ui/views/ButtonStyle.hpp"

#include "Orvane/ui/views/ShapeView.hpp"

namespace orvane::ui {

namespace {

// As in the system's push buttons, in points.
constexpr double bezelRadius = 6;
constexpr double bezelPaddingAcross = 12;
constexpr double bezelPaddingDown = 5;
constexpr double disabledOpacity = 0.45;

}  // namespace

View PlainButtonStyle::body(const ButtonConfiguration& configuration, const Environment&) const {
  const double enabled = configuration.isPressed ? 0.7 : 1;
  return configuration.label.opacity(configuration.isEnabled ? enabled : disabledOpacity);
}

View BorderedButtonStyle::body(const ButtonConfiguration& configuration,
                               const Environment& environment) const {
  const bool isFilled = (isProminent || configuration.isDefault) && configuration.isEnabled;
  const Color neutral = environment.isDark()
                            ? Color::white().opacity(configuration.isPressed ? 0.26 : 0.2)
                            : Color::black().opacity(configuration.isPressed ? 0.16 : 0.09);
  const Color filled = Color::accent().buttonFill();
  const Color accent = configuration.isPressed ? filled.opacity(0.8) : filled;
  const Color rim =
      environment.isDark() ? Color::white().opacity(0.1) : Color::black().opacity(0.06);
  return configuration.label.foreground(isFilled ? Color::accent().buttonLabel() : Color::primary())
      .padding(Edges::symmetric(bezelPaddingAcross, bezelPaddingDown))
      .background(
          RoundedRectangle(bezelRadius).fill(isFilled ? accent : neutral).strokeBorder(rim, 0.5))
      .opacity(configuration.isEnabled ? 1 : disabledOpacity);
}

}  // namespace orvane::ui
