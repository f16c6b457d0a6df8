// The style makes the button's body; its node knows whether it is pressed.
#include "Orvane/ui/views/Button.hpp"

#include <utility>

#include "Orvane/ui/host/BuildPass.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane::ui {

namespace {

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
  ButtonElement(std::function<void(const Activation&)> action, View label)
      : label_(std::move(label)), style_(BorderedButtonStyle{}) {
    interaction_.activate = std::move(action);
    interaction_.isFocusable = true;
  }

  void setStyle(const ButtonStyle& style) { style_ = style; }
  void setFocusRing(const Shape& shape) { interaction_.focusShape = shape; }
  void leaveTabOrder() { interaction_.isFocusable = false; }

  void build(Node& node, BuildPass& pass) const override {
    pass.body(node, [&](const Environment& environment) {
      return style_.body({.label = label_,
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
    SemanticsNode control;
    control.id = node.id;
    control.role = Role::button;
    control.isEnabled = node.environment->isEnabled;
    control.isFocusable = interaction_.isFocusable;
    control.frame = node.hostFrame();
    control.isControl = true;
    for (const SemanticsNode& content : contents) {
      appendTexts(content, control);
    }
    return {std::move(control)};
  }

 private:
  Interaction interaction_;
  View label_;
  ButtonStyle style_;
};

Button::Button(std::function<void()> action, const View& label)
    : Button(
          std::function<void(const Activation&)>([action = std::move(action)](const Activation&) {
            if (action) {
              action();
            }
          }),
          label) {}

Button::Button(const std::string& title, std::function<void()> action)
    : Button(std::move(action), Text(title)) {}

Button::Button(std::function<void(const Activation&)> action, const View& label)
    : Button(std::make_shared<ButtonElement>(std::move(action), label)) {}

Button::Button(std::shared_ptr<const ButtonElement> element)
    : View(element), button_(std::move(element)) {}

Button Button::style(const ButtonStyle& style) const {
  auto changed = std::make_shared<ButtonElement>(*button_);
  changed->setStyle(style);
  return Button(std::move(changed));
}

Button Button::focusRing(const Shape& shape) const {
  auto changed = std::make_shared<ButtonElement>(*button_);
  changed->setFocusRing(shape);
  return Button(std::move(changed));
}

Button Button::outOfTabOrder() const {
  auto changed = std::make_shared<ButtonElement>(*button_);
  changed->leaveTabOrder();
  return Button(std::move(changed));
}

}  // namespace orvane::ui
