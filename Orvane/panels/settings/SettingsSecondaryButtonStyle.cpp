// The look of the buttons within the cards of the settings panel.
#include "Orvane/panels/settings/SettingsSecondaryButtonStyle.hpp"

#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/panels/settings/SettingsPalette.hpp"
#include "Orvane/ui/ShapeView.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double height = 25;
constexpr double buttonPadding = 11;
constexpr double rimOpacityDark = 0.16;
constexpr double rimOpacityLight = 0.18;
constexpr double pressedOpacity = 0.7;

}  // namespace

View SettingsSecondaryButtonStyle::body(const ButtonConfiguration& configuration,
                                        const Environment& environment) const {
  const bool isDark = environment.isDark();
  const Color fill =
      isDark ? Color::white().opacity(0.1) : SettingsPalette::buttonFill().opacity(0.9);
  const Color rim = isDark ? Color::white().opacity(rimOpacityDark)
                           : SettingsPalette::blue().opacity(rimOpacityLight);
  return configuration.label.font(Font::system(13, Weight::semibold))
      .padding(Edges::horizontal(buttonPadding).vertical(0))
      .height(height)
      .background(RoundedRectangle(cornerRadius)
                      .fill(configuration.isPressed ? fill.opacity(pressedOpacity) : fill)
                      .stroke(OrvanePalette::outline(rim, environment), 0.7));
}

}  // namespace orvane
