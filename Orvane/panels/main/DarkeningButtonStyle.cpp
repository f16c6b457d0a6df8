// The style of a button whose label is its own surface.
#include "Orvane/panels/main/DarkeningButtonStyle.hpp"

#include "Orvane/ui/views/ShapeView.hpp"

namespace orvane {

using namespace ui;

View DarkeningButtonStyle::operator()(const ButtonConfiguration& configuration,
                                      const Environment& /*environment*/) const {
  return configuration.label.overlay(when(configuration.isPressed, [&] {
    return ShapeView(shape).fill(Color::black().opacity(shade));
  }));
}

}  // namespace orvane
