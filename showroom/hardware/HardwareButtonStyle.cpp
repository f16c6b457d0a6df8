// A translucent plate that darkens while pressed.
#include "showroom/hardware/HardwareButtonStyle.hpp"

#include "Orvane/ui/views/ShapeView.hpp"

namespace orvane::showroom {

using namespace ui;

View HardwareButtonStyle::operator()(const ButtonConfiguration& configuration,
                                     const Environment& environment) const {
  const double strength = configuration.isPressed ? 0.2 : 0.09;
  const Color ground = environment.isDark() ? Color::white().opacity(strength + 0.05)
                                            : Color::black().opacity(strength);
  return configuration.label.font(Font::system(11, Weight::medium))
      .foreground(Color::primary())
      .padding(Edges::symmetric(9, 3.5))
      .background(RoundedRectangle(5).fill(ground))
      .opacity(configuration.isEnabled ? 1 : 0.4);
}

}  // namespace orvane::showroom
