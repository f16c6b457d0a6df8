// The colours of the main panel.
#include "Orvane/panels/main/OrvanePalette.hpp"

namespace orvane::OrvanePalette {

using ui::Color;
using ui::Fill;

namespace {

Color white(double opacity) {
  return Color::white().opacity(opacity);
}
Color black(double opacity) {
  return Color::black().opacity(opacity);
}
Color accent(double opacity) {
  return Color::accent().opacity(opacity);
}

}  // namespace

Fill windowGradient(bool isDark) {
  return isDark ? Fill::gradient({white(0.07), accent(0.05), black(0.16)})
                : Fill::gradient({white(0.34), accent(0.055), white(0.12)});
}

// Ends in transparent white: towards Color::clear(), which is black, it would turn grey.
Fill windowTopHighlight(bool isDark) {
  return isDark ? Fill::gradient({white(0.085), white(0.035), white(0)})
                : Fill::gradient({white(0.28), white(0.12), white(0)});
}

Fill panelOverlayGradient(bool isDark) {
  return isDark ? Fill::gradient({white(0.1), accent(0.055), black(0.08)})
                : Fill::gradient({white(0.3), white(0.1)});
}

// The backgrounds are those of the selected card at their worst: over a white wallpaper in dark
// mode, over a black one in light mode.
Color accentText(bool isDark, double veil) {
  return Color::accent().textOn(isDark ? 0.078 : 0.81, veil);
}

Color secondaryButtonFill(bool isDark, bool isPressed) {
  if (isDark) {
    return white(isPressed ? 0.14 : 0.085);
  }
  return black(isPressed ? 0.08 : 0.05);
}

Color windowRim(bool isDark) {
  return white(isDark ? 0.08 : 0.28);
}

Color panelRim(bool isDark) {
  return white(isDark ? 0.22 : 0.5);
}

Color controlRim(bool isDark) {
  return isDark ? white(0.18) : black(0.065);
}

Color outline(const Color& rim, const ui::Environment& environment) {
  return environment.appearance.increaseContrast ? Color::primary().opacity(0.6) : rim;
}

}  // namespace orvane::OrvanePalette
