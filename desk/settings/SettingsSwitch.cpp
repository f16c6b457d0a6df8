// The small switch at the end of a row of System Settings.
#include "desk/settings/SettingsSwitch.hpp"

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "desk/settings/SettingsButtonStyle.hpp"

namespace orvane::desk {

using namespace ui;

View SettingsSwitch::body(const Environment& environment) const {
  // The dimensions of the system's small switch.
  constexpr double width = 26;
  constexpr double height = 15;
  constexpr double rim = 1;
  const Color off =
      environment.isDark() ? Color::white().opacity(0.22) : Color::black().opacity(0.15);
  const View knob =
      Circle()
          .fill(Color::white())
          .castShadow({.color = Color::black().opacity(0.25), .radius = 1.5, .y = 0.5})
          .frame(height - 2 * rim, height - 2 * rim)
          .padding(rim);
  const View track = Capsule().fill(isOn ? Color::accent() : off);
  const View drawing = ZStack(isOn ? Alignment::trailing() : Alignment::leading(), {track, knob})
                           .frame(width, height)
                           .animation(Curve::easeInOut(0.15), isOn);
  return Button(onToggle, drawing)
      .style(SettingsButtonStyle{})
      .focusRing(Shape::capsule())
      .accessibilityRole(Role::toggle)
      .accessibilityLabel(label)
      .accessibilityValue(isOn ? "1" : "0");
}

}  // namespace orvane::desk
