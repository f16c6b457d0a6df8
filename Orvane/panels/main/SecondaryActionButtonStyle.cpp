// The style of a panel's secondary buttons.
#include "Orvane/panels/main/SecondaryActionButtonStyle.hpp"

#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/ui/views/ShapeView.hpp"

namespace orvane {

using namespace ui;

View SecondaryActionButtonStyle::operator()(const ButtonConfiguration& configuration,
                                            const Environment& environment) const {
  const bool isDark = environment.isDark();
  return configuration.label.font(Font::system(13, Weight::bold))
      .foreground(Color::primary().opacity(0.82))
      .maximumWidth()
      .height(height)
      .background(
          RoundedRectangle(cornerRadius)
              .fill(OrvanePalette::secondaryButtonFill(isDark, configuration.isPressed))
              .stroke(OrvanePalette::outline(OrvanePalette::controlRim(isDark), environment), 0.8))
      .opacity(configuration.isEnabled ? 1 : OrvanePalette::disabledOpacity)
      .scale(configuration.isPressed ? 0.99 : 1);
}

}  // namespace orvane
