// The style of a panel's primary button.
#include "Orvane/panels/main/PrimaryActionButtonStyle.hpp"

#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/ui/views/ShapeView.hpp"

namespace orvane {

using namespace ui;

View PrimaryActionButtonStyle::operator()(const ButtonConfiguration& configuration,
                                          const Environment& /*environment*/) const {
  const Fill fill = Fill::systemGradient(tint.buttonFill());
  return configuration.label.font(Font::system(15, Weight::semibold))
      .foreground(tint.buttonLabel())
      .maximumWidth()
      .height(height)
      .background(
          RoundedRectangle(cornerRadius).fill(configuration.isPressed ? fill.opacity(0.82) : fill))
      .opacity(configuration.isEnabled ? 1 : OrvanePalette::disabledOpacity)
      .scale(configuration.isPressed ? 0.995 : 1);
}

}  // namespace orvane
