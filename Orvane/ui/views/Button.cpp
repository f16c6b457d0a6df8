// The style makes the button's body; its node knows whether it is pressed.
#include "Orvane/ui/views/Button.hpp"

#include <utility>

#include "Orvane/ui/host/BuildPass.hpp"
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

}  // namespace

class ButtonElement final : public Element {
 public:
  ButtonElement(std::function<void(const Rect&)> action, View label)
      : label_(std::move(label)), style_(BorderedButtonStyle{}) {
    interaction_.activate = std::move(action);
    interaction_.isFocusable = true;
  }

  void build(Node& node, BuildPass& pass) const override {
    pass.body(node, [&](const Environment& environment) {
      return style_({.label = label_,
                     .isPressed = node.isPressed && environment.isEnabled,
                     .isEnabled = environment.isEnabled,
                     .isDefault = environment.shortcut && environment.shortcut->isDefault()},
                    environment);
    });
  }

  [[nodiscard]] const Interaction& interaction() const override { return interaction_; }

  // One element for the whole control, labelled with the texts in it.
  [[nodiscard]] std::vector<SemanticsNode> semantics(
      const Node& node, std::vector<SemanticsNode> contents) const override {
    SemanticsNode control = node.semantics(Role::button);
    control.isFocusable = interaction_.isFocusable;
    control.isControl = true;
    for (const SemanticsNode& content : contents) {
      appendTexts(content, control);
    }
    return {std::move(control)};
  }

 private:
  friend class Button;

  Interaction interaction_;
  View label_;
  ButtonStyle style_;
};

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
    : View(std::make_shared<ButtonElement>(std::move(action), label)) {}

template <typename Change>
Button Button::changed(const Change& change) const {
  auto copy = std::make_shared<ButtonElement>(static_cast<const ButtonElement&>(*element()));
  change(*copy);
  return Button(View(std::move(copy)));
}

Button Button::style(const ButtonStyle& style) const {
  return changed([&](ButtonElement& button) { button.style_ = style; });
}

Button Button::focusRing(const Shape& shape) const {
  return changed([&](ButtonElement& button) { button.interaction_.focusShape = shape; });
}

Button Button::outOfTabOrder() const {
  return changed([](ButtonElement& button) { button.interaction_.isFocusable = false; });
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
