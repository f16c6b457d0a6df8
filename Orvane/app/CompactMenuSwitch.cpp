// A small switch that only shows a state; its row handles the clicks.
#include "Orvane/app/CompactMenuSwitch.hpp"

#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double offRimOpacity = 0.5;

}  // namespace

View CompactMenuSwitch::body(const Environment& environment) const {
  const Color track = isOn ? Color::blue() : Color::tertiary().opacity(0.22);
  const View knob = Circle()
                        .fill(Color::white())
                        .castShadow({.color = Color::black().opacity(0.14), .radius = 1, .y = 0.5})
                        .frame(15, 15)
                        .padding(1.5);
  // The track of a switch that is off is too faint to see without an outline; the outline has a
  // contrast of at least 3 to 1 with the menu.
  const Color rim = OrvanePalette::outline(
      isOn ? Color::clear() : Color::primary().opacity(offRimOpacity), environment);
  return ZStack(isOn ? Alignment::trailing() : Alignment::leading(),
                {Capsule().fill(track).strokeBorder(rim), knob})
      .frame(34, 18)
      .accessibilityHidden();
}

}  // namespace orvane
