// The style makes the button's body; its node knows whether it is pressed.
#include "Orvane/ui/views/Button.hpp"

#include <utility>

#include "Orvane/ui/views/Modifiers.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane::ui {

namespace {

// As in the system's push buttons, in points.
constexpr double bezelRadius = 6;
constexpr double bezelPaddingAcross = 12;
constexpr double bezelPaddingDown = 5;
constexpr double disabledOpacity = 0.45;

void append(const std::string& text, std::string& list) {
  if (!text.empty()) {
    list += (list.empty() ? "" : ", ") + text;
  }
}

void appendTexts(const SemanticsNode& content, SemanticsNode& control) {
  append(content.label, control.label);
  append(content.cutText, control.cutText);
  for (const SemanticsNode& child : content.children) {
    appendTexts(child, control);
  }
}

// The value is how it takes part in input.
struct ButtonElement final : ModifierElement<Interaction> {
  ButtonStyle style = BorderedButtonStyle{};

  void build(Node& node, BuildPass& pass) const override {
    buildBody(node, pass, [&](const Environment& environment) {
      return style({.label = content,
                    .isPressed = node.isPressed && environment.isEnabled,
                    .isEnabled = environment.isEnabled,
                    .isDefault = environment.shortcut && environment.shortcut->isDefault()},
                   environment);
    });
  }

  [[nodiscard]] const Interaction& interaction() const override { return value; }

  // One element for the whole control, labelled with the texts in it.
  [[nodiscard]] std::vector<SemanticsNode> semantics(
      const Node& node, std::vector<SemanticsNode> contents) const override {
    SemanticsNode control = node.semantics(Role::button);
    control.isFocusable = value.isFocusable;
    control.isControl = true;
    for (const SemanticsNode& content : contents) {
      appendTexts(content, control);
    }
    return {std::move(control)};
  }
};

}  // namespace

Button::Button(std::function<void()> action, const View& label)
    : Button(std::function<void(const Rect&)>([action = std::move(action)](const Rect&) {
               if (action) {
                 action();
               }
             }),
             label) {}

Button::Button(const std::string& title, std::function<void()> action)
    : Button(std::move(action), Text(title)) {}

Button::Button(std::function<void(const Rect&)> action, const View& label)
    : View(wrapped<ButtonElement>(
          label, Interaction{.activate = std::move(action), .isFocusable = true})) {}

Button Button::style(const ButtonStyle& style) const {
  return Button(altered<ButtonElement>(*this, [&](auto& button) { button.style = style; }));
}

Button Button::focusRing(const Shape& shape) const {
  return Button(
      altered<ButtonElement>(*this, [&](auto& button) { button.value.focusShape = shape; }));
}

Button Button::outOfTabOrder() const {
  return Button(
      altered<ButtonElement>(*this, [](auto& button) { button.value.isFocusable = false; }));
}

View PlainButtonStyle::operator()(const ButtonConfiguration& configuration,
                                  const Environment&) const {
  const double enabled = configuration.isPressed ? 0.7 : 1;
  return configuration.label.opacity(configuration.isEnabled ? enabled : disabledOpacity);
}

View BorderedButtonStyle::operator()(const ButtonConfiguration& configuration,
                                     const Environment& environment) const {
  const bool isFilled = configuration.isDefault && configuration.isEnabled;
  const Color neutral = environment.isDark()
                            ? Color::white().opacity(configuration.isPressed ? 0.26 : 0.2)
                            : Color::black().opacity(configuration.isPressed ? 0.16 : 0.09);
  const Color filled = Color::accent().buttonFill();
  const Color accent = configuration.isPressed ? filled.opacity(0.8) : filled;
  const Color rim =
      environment.isDark() ? Color::white().opacity(0.1) : Color::black().opacity(0.06);
  return configuration.label.foreground(isFilled ? Color::accent().buttonLabel() : Color::primary())
      .padding(Edges::symmetric(bezelPaddingAcross, bezelPaddingDown))
      .background(
          RoundedRectangle(bezelRadius).fill(isFilled ? accent : neutral).strokeBorder(rim, 0.5))
      .opacity(configuration.isEnabled ? 1 : disabledOpacity);
}

}  // namespace orvane::ui
