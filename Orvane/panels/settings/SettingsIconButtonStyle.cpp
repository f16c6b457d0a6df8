// The style of the close button of the settings panel.
#include "Orvane/panels/settings/SettingsIconButtonStyle.hpp"

#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/panels/settings/SettingsPalette.hpp"
#include "Orvane/ui/views/ShapeView.hpp"

namespace orvane {

using namespace ui;

View SettingsIconButtonStyle::operator()(const ButtonConfiguration& configuration,
                                         const Environment& environment) const {
  const bool isPressed = configuration.isPressed;
  return configuration.label.foreground(isPressed ? SettingsPalette::indigo() : Color::secondary())
      .background(Circle()
                      .fill(isPressed ? SettingsPalette::blue().opacity(0.18)
                                      : Color::secondary().opacity(0.1))
                      .strokeBorder(OrvanePalette::outline(Color::clear(), environment), 0.8))
      .scale(isPressed ? 0.94 : 1)
      .animation(Curve::easeOut(0.12), isPressed);
}

}  // namespace orvane
