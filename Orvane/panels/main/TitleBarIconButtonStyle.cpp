// The style of the icon button in the title bar.
#include "Orvane/panels/main/TitleBarIconButtonStyle.hpp"

#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/ui/views/ShapeView.hpp"

namespace orvane {

using namespace ui;

namespace {

double backgroundOpacity(bool isDark, bool isPressed) {
  if (isDark) {
    return isPressed ? 0.075 : 0.14;
  }
  return isPressed ? 0.12 : 0.32;
}

}  // namespace

View TitleBarIconButtonStyle::operator()(const ButtonConfiguration& configuration,
                                         const Environment& environment) const {
  const bool isDark = environment.isDark();
  return configuration.label
      .foreground(isDark ? Color::primary().opacity(0.84) : Color::rgb(0.16, 0.22, 0.34))
      .background(
          RoundedRectangle(cornerRadius)
              .castShadow(
                  {.color = Color::black().opacity(isDark ? 0.22 : 0.1), .radius = 5, .y = 2})
              .fill(Color::white().opacity(backgroundOpacity(isDark, configuration.isPressed)))
              .stroke(OrvanePalette::outline(OrvanePalette::panelRim(isDark), environment), 0.7))
      .opacity(configuration.isEnabled ? 1 : OrvanePalette::disabledOpacity)
      .scale(configuration.isPressed ? 0.96 : 1);
}

}  // namespace orvane
