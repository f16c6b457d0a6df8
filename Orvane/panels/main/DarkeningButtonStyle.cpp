// The look of a button whose label is a surface of its own.
#include "Orvane/panels/main/DarkeningButtonStyle.hpp"

#include "Orvane/ui/views/ShapeView.hpp"

namespace orvane {

using namespace ui;

View DarkeningButtonStyle::body(const ButtonConfiguration& configuration,
                                const Environment& /*environment*/) const {
  return configuration.label.overlay(when(configuration.isPressed, [&] {
    return ShapeView(form).fill(Color::black().opacity(shade));
  }));
}

}  // namespace orvane
