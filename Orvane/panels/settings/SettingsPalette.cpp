// The colours of the settings panel.
#include "Orvane/panels/settings/SettingsPalette.hpp"

namespace orvane::SettingsPalette {

using ui::Color;
using ui::Fill;
using ui::UnitPoint;

Color blue() {
  return Color::rgb(0.03, 0.47, 0.98);
}
Color sky() {
  return Color::rgb(0.12, 0.58, 0.92);
}
Color indigo() {
  return Color::rgb(0.34, 0.39, 0.95);
}
Color mint() {
  return Color::rgb(0.02, 0.62, 0.64);
}
Color windowTop() {
  return Color::rgb(0.97, 0.99, 1.0);
}
Color windowMid() {
  return Color::rgb(0.91, 0.97, 1.0);
}
Color windowBottom() {
  return Color::rgb(0.96, 0.99, 0.98);
}
Color buttonFill() {
  return Color::rgb(0.85, 0.93, 1.0);
}

Color statementText() {
  return Color::primary().opacity(0.72);
}

Fill windowGradient(bool isDark) {
  return isDark ? Fill::gradient({Color::rgb(0.055, 0.075, 0.095).opacity(0.98),
                                  Color::rgb(0.03, 0.07, 0.1).opacity(0.94),
                                  Color::rgb(0.02, 0.05, 0.055).opacity(0.94)})
                : Fill::gradient({windowTop().opacity(0.82), windowMid().opacity(0.7),
                                  windowBottom().opacity(0.78)});
}

Fill headerGradient(bool isDark) {
  return Fill::gradient({Color::white().opacity(isDark ? 0.075 : 0.58),
                         blue().opacity(isDark ? 0.12 : 0.1), mint().opacity(0.08)});
}

Fill dividerGradient(bool isDark) {
  return Fill::gradient(
      {Color::white().opacity(isDark ? 0.12 : 0.72), blue().opacity(isDark ? 0.22 : 0.16)},
      UnitPoint::leading(), UnitPoint::trailing());
}

}  // namespace orvane::SettingsPalette
