// A control with an action and a label.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "Orvane/ui/views/ButtonStyle.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

class ButtonElement;

// The action runs on a click (pressed and released inside), on Space while it has the keyboard
// focus, on its keyboard shortcut, and on an accessibility press; never while it is disabled. It
// may destroy the button.
class Button : public View {
 public:
  Button(std::function<void()> action, const View& label);
  Button(const std::string& title, std::function<void()> action);
  // An action that wants to know where the control is.
  Button(std::function<void(const Activation&)> action, const View& label);

  // Bordered, unless another style is given.
  Button style(const ButtonStyle& style) const;
  // The outline of the ring around it while it has the keyboard focus.
  Button focusRing(const Shape& shape) const;
  // Passed over by Tab, as the buttons of a window are; a click, its shortcut and an accessibility
  // press still reach it.
  Button outOfTabOrder() const;

 private:
  explicit Button(std::shared_ptr<const ButtonElement> element);

  std::shared_ptr<const ButtonElement> button_;
};

}  // namespace orvane::ui
