// A segmented control whose selected segment is raised.
#include "showroom/hardware/HardwareChoice.hpp"

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane::showroom {

using namespace ui;

namespace {

constexpr double plateWidth = 192;
constexpr double plateHeight = 22;

}  // namespace

View HardwareChoice::segment(std::size_t index, const Environment& environment) const {
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
      .style(ui::BareButtonStyle{})
      .focusRing(Shape::rounded(4))
      .accessibilityLabel(title + ": " + items[index])
      .accessibilityRole(Role::radioButton)
      .accessibilitySelected(isSelected);
}

View HardwareChoice::body(const Environment& environment) const {
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

}  // namespace orvane::showroom
