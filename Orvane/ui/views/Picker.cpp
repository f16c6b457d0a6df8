// A button whose action opens a menu.
#include "Orvane/ui/views/Picker.hpp"

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane::ui {

namespace {

// As in the system's pop-up buttons, in points.
constexpr double popUpHeight = 22;
constexpr double popUpRadius = 5;
constexpr double arrowsWidth = 16;

struct PopUpButtonStyle {
  View operator()(const ButtonConfiguration& configuration, const Environment& environment) const {
    const Color bezel = Color::white().opacity(environment.isDark() ? 0.16 : 0.95);
    // At least 3 to 1 against what the button lies on.
    const double rim = environment.appearance.increaseContrast ? 0.6
                       : environment.isDark()                  ? 0.35
                                                               : 0.55;
    return configuration.label.height(popUpHeight)
        .background(RoundedRectangle(popUpRadius)
                        .castShadow({.color = Color::black().opacity(0.12), .radius = 1, .y = 0.5})
                        .fill(bezel)
                        .fill(Color::primary().opacity(configuration.isPressed ? 0.12 : 0))
                        .strokeBorder(Color::primary().opacity(rim), 1))
        .opacity(configuration.isEnabled ? 1 : 0.45);
  }
};

}  // namespace

View Picker::body(const Environment& environment) const {
  const bool isValid = selectedIndex >= 0 && selectedIndex < static_cast<int>(items.size());
  const std::string title = isValid ? items[static_cast<std::size_t>(selectedIndex)] : "";
  const View arrows =
      Symbol("chevron.up.chevron.down").font(Font::system(9, Weight::semibold)).width(arrowsWidth);
  const View content = HStack(4, {Text(title).lineLimit(1), Spacer(), arrows})
                           .padding(Edges{.leading = 8, .trailing = 3})
                           .foreground(Color::primary());
  const auto open = [link = environment.link,
                     request = MenuRequest{items, selectedIndex, {}, onChoose}](const Rect& frame) {
    if (const auto host = link.lock()) {
      MenuRequest placed = request;
      placed.anchor = frame;
      host->call(&HostServices::openMenu, placed);
    }
  };
  return Button(std::function<void(const Rect&)>(open), content)
      .style(PopUpButtonStyle{})
      .focusRing(Shape::rounded(popUpRadius))
      .accessibilityRole(Role::popUpButton)
      .accessibilityLabel(label)
      .accessibilityValue(title);
}

}  // namespace orvane::ui
