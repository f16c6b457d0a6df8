// A button is a translucent plate that darkens while pressed; the selected segment of a segmented
// control is raised.
#include "showroom/hardware/HardwareControls.hpp"

#include <utility>

#include "Orvane/app/CompactMenuSwitch.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane::showroom {

using namespace ui;

namespace {

constexpr double plateWidth = 192;
constexpr double plateHeight = 22;

struct HardwareButtonStyle {
  View operator()(const ButtonConfiguration& configuration, const Environment& environment) const {
    const double strength = configuration.isPressed ? 0.2 : 0.09;
    const Color ground = environment.isDark() ? Color::white().opacity(strength + 0.05)
                                              : Color::black().opacity(strength);
    return configuration.label.font(Font::system(11, Weight::medium))
        .foreground(Color::primary())
        .padding(Edges::symmetric(9, 3.5))
        .background(RoundedRectangle(5).fill(ground))
        .opacity(configuration.isEnabled ? 1 : 0.4);
  }
};

struct HardwareChoice {
  std::string title;
  std::vector<std::string> items;
  std::optional<std::size_t> selected;
  std::function<void(std::size_t)> onChoose;

  View body(const Environment& environment) const {
    std::vector<View> segments;
    for (std::size_t index = 0; index < items.size(); ++index) {
      segments.push_back(segment(index, environment));
    }
    const Color plate =
        environment.isDark() ? Color::white().opacity(0.09) : Color::black().opacity(0.07);
    return HStack(0, {Text(title).lineLimit(1), Spacer(),
                      HStack(2, segments)
                          .padding(2)
                          .frame(plateWidth, plateHeight)
                          .background(RoundedRectangle(6).fill(plate))})
        .height(30);
  }

 private:
  [[nodiscard]] View segment(std::size_t index, const Environment& environment) const {
    const bool isSelected = selected == index;
    const Color raised = environment.isDark() ? Color::white().opacity(0.28) : Color::white();
    const View label =
        Text(items[index])
            .lineLimit(1)
            .allowsTightening()
            .font(Font::system(11, isSelected ? Weight::semibold : Weight::regular))
            .padding(Edges::horizontal(1))
            .frame({.height = plateHeight - 4, .maximumWidth = infinity})
            .background(isSelected
                            ? View(RoundedRectangle(4).fill(raised).castShadow(
                                  {.color = Color::black().opacity(0.25), .radius = 1, .y = 0.5}))
                            : View());
    return Button([choose = onChoose, index] { choose(index); }, label)
        .style(BareButtonStyle{})
        .focusRing(Shape::rounded(4))
        .accessibilityLabel(title + ": " + items[index])
        .accessibilityRole(Role::radioButton)
        .accessibilitySelected(isSelected);
  }
};

}  // namespace

View hardwareButton(const std::string& title, const std::string& label,
                    std::function<void()> action) {
  return Button(std::move(action), Text(title).lineLimit(1))
      .style(HardwareButtonStyle{})
      .focusRing(Shape::rounded(5))
      .accessibilityLabel(label);
}

View hardwareSwitch(const std::string& title, bool isOn,
                    const std::function<void(bool isOn)>& onChange) {
  // The menu's track alone has too little contrast on the plate while it is off.
  const View knob = View(CompactMenuSwitch{isOn}).background(when(!isOn, [] {
    return Capsule().fill(Color::primary().opacity(0.16));
  }));
  const View row = HStack(8, {Text(title).lineLimit(1), Spacer(), knob}).height(30);
  return Button([onChange, isOn] { onChange(!isOn); }, row)
      .style(BareButtonStyle{})
      .focusRing(Shape::rounded(6))
      .accessibilityLabel(title)
      .accessibilityRole(Role::toggle)
      .accessibilityValue(isOn ? "1" : "0");
}

View hardwareChoice(const std::string& title, std::vector<std::string> items,
                    std::optional<std::size_t> selected,
                    std::function<void(std::size_t index)> onChoose) {
  return HardwareChoice{title, std::move(items), selected, std::move(onChoose)};
}

}  // namespace orvane::showroom
