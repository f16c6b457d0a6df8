// Uses the menu's switch on a darker track.
#include "showroom/hardware/HardwareSwitch.hpp"

#include "Orvane/app/CompactMenuSwitch.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane::showroom {

using namespace ui;

View HardwareSwitch::body(const Environment& /*environment*/) const {
  // The menu's track alone has too little contrast on the plate while it is off.
  const View knob = View(CompactMenuSwitch{isOn}).background(when(!isOn, [] {
    return Capsule().fill(Color::primary().opacity(0.16));
  }));
  const View row = HStack(8, {Text(title).lineLimit(1), Spacer(), knob}).height(30);
  return Button([change = onChange, isOn = isOn] { change(!isOn); }, row)
      .style(ui::BareButtonStyle{})
      .focusRing(Shape::rounded(6))
      .accessibilityLabel(title)
      .accessibilityRole(Role::toggle)
      .accessibilityValue(isOn ? "1" : "0");
}

}  // namespace orvane::showroom
