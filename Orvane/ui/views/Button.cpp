// The button: its style makes its body, its node knows whether it is pressed.
#include "Orvane/ui/views/Button.hpp"

#include "Orvane/ui/host/Builder.hpp"
#include "Orvane/ui/views/ControlSemantics.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane::ui {

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

  void build(Node& node, Builder& builder) const override {
    if (!node.states) {
      node.states = std::make_shared<StateStore>();
    }
    Environment own = *node.environment;
    own.states = node.states;
    ButtonConfiguration configuration;
    configuration.label = label_;
    configuration.isEnabled = own.isEnabled;
    configuration.isPressed = node.isPressed && own.isEnabled;
    configuration.isDefault = own.shortcut && own.shortcut->isDefault();
    builder.children(node, {style_.body(configuration, own)}, node.environment);
  }

  const Interaction* interaction() const override { return &interaction_; }

  std::vector<SemanticsNode> semantics(const Node& node,
                                       std::vector<SemanticsNode> children) const override {
    return {controlSemantics(node, Role::button, interaction_, children)};
  }

 private:
  Interaction interaction_;
  View label_;
  ButtonStyle style_;
};

namespace {

std::function<void(const Activation&)> ignoringActivation(std::function<void()> action) {
  return [action = std::move(action)](const Activation&) {
    if (action) {
      action();
    }
  };
}

}  // namespace

Button::Button(std::function<void()> action, const View& label)
    : Button(ignoringActivation(std::move(action)), label) {}

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
