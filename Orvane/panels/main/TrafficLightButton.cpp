// One of the round buttons at the leading end of the title bar.
#include "Orvane/panels/main/TrafficLightButton.hpp"

#include <utility>

#include "Orvane/panels/main/DarkeningButtonStyle.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double diameter = 14;
constexpr double lightHoverSeconds = 0.14;
constexpr double lightPressedShade = 0.2;

}  // namespace

TrafficLightButton TrafficLightButton::close(bool showsHoverIcon, std::string label,
                                             std::function<void()> action) {
  return {.color = Color::rgb(1.0, 0.3, 0.29),
          .stroke = Color::rgb(0.86, 0.16, 0.16),
          .hoverIconColor = Color::rgb(0.38, 0.04, 0.04),
          .hoverSystemImage = "xmark",
          .showsHoverIcon = showsHoverIcon,
          .label = std::move(label),
          .action = std::move(action)};
}

TrafficLightButton TrafficLightButton::minimise(bool showsHoverIcon, std::string label,
                                                std::function<void()> action) {
  return {.color = Color::rgb(1.0, 0.7, 0.04),
          .stroke = Color::rgb(0.84, 0.54, 0.02),
          .hoverIconColor = Color::rgb(0.56, 0.34, 0.0),
          .hoverSystemImage = "minus",
          .showsHoverIcon = showsHoverIcon,
          .label = std::move(label),
          .action = std::move(action)};
}

View TrafficLightButton::body(const Environment& environment) const {
  const State<bool> isHovered = environment.state("isHovered", false);
  const View light =
      Symbol(hoverSystemImage)
          .font(Font::system(8.5, Weight::heavy))
          .foreground(hoverIconColor)
          .opacity(showsHoverIcon ? 1 : 0)
          .frame(diameter, diameter)
          .background(
              Circle()
                  .castShadow(
                      {.color = color.opacity(isHovered.value() ? 0.26 : 0), .radius = 4, .y = 1})
                  .fill(color)
                  .stroke(stroke.opacity(0.55), 0.7));
  return Button(action, light)
      .style(DarkeningButtonStyle{.shape = Shape::circle(), .shade = lightPressedShade})
      .outOfTabOrder()
      .accessibilityLabel(label)
      .scale(isHovered.value() ? 1.1 : 1)
      .animation(Curve::easeOut(lightHoverSeconds), isHovered.value())
      .onHover([isHovered](bool isInside) { isHovered.set(isInside); });
}

}  // namespace orvane
