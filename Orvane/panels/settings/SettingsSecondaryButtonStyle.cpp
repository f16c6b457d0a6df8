// The style of the buttons in the cards of the settings panel.
#include "Orvane/panels/settings/SettingsSecondaryButtonStyle.hpp"

#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/panels/settings/SettingsPalette.hpp"
#include "Orvane/ui/views/ShapeView.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double height = 25;
constexpr double buttonPadding = 11;
constexpr double rimOpacityDark = 0.16;
constexpr double rimOpacityLight = 0.18;
constexpr double pressedSeconds = 0.12;

/// Lies over the fill while the button is pressed.
Color pressedVeil(bool isDark) {
  return isDark ? Color::white().opacity(0.14) : SettingsPalette::blue().opacity(0.22);
}

}  // namespace

View SettingsSecondaryButtonStyle::operator()(const ButtonConfiguration& configuration,
                                              const Environment& environment) const {
  const bool isDark = environment.isDark();
  const Color fill =
      isDark ? Color::white().opacity(0.1) : SettingsPalette::buttonFill().opacity(0.9);
  const Color rim = isDark ? Color::white().opacity(rimOpacityDark)
                           : SettingsPalette::blue().opacity(rimOpacityLight);
  return configuration.label.font(Font::system(13, Weight::semibold))
      .padding(Edges::symmetric(buttonPadding, 0))
      .height(height)
      .background(RoundedRectangle(cornerRadius)
                      .fill(fill)
                      .fill(pressedVeil(isDark).opacity(configuration.isPressed ? 1 : 0))
                      .stroke(OrvanePalette::outline(rim, environment), 0.7))
      .animation(Curve::easeOut(pressedSeconds), configuration.isPressed);
}

}  // namespace orvane
